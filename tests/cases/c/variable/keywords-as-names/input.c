int near;
int far = 1;
int readonly;
int new;
int final;
int good;
