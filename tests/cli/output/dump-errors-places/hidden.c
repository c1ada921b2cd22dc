int a;
/* b */ )
