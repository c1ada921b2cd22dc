}
int x;
};
int y;
