p->*q p->q p-->q a<=>b a<=b a<<=b a.*b a...b
