again: int a;
case 1: int b;
return 0;
goto out;
