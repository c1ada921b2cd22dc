;;;
int a;;
