__attribute__ ( (x)) y;
