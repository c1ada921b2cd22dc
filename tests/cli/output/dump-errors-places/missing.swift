func f( { }
