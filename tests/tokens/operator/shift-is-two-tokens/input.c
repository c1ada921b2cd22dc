a>>=b>>c
