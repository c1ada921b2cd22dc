map<string, vector<int>> m;
a < b > c;
vector< int ,
 char > v;
A<1 < 2> w;
foo<(1 > 2)> x;
A</* c */ int> y;
B<C[1], {2}> z;
