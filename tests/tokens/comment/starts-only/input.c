a/b /= c / *d
