a 	

b
