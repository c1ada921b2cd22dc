int $a;
int ÄÖb;
int `c;
