@compatibility_alias Old New;
