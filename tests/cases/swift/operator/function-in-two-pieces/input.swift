func +  - (a: A) {}
func +/* */-(a: A) {}
