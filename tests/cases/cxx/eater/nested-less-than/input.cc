B<a < b> x;
