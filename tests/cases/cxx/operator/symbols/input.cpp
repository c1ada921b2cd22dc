struct A {
  A &operator<(A); A operator>(A); A operator=(A); A operator*=(A);
  A operator/=(A); A operator+=(A); A operator-=(A); A operator%=(A);
  A operator<<=(A); A operator>=(A); A operator&=(A); A operator^=(A);
  A operator|=(A); A operator||(A); A operator&&(A); A operator|(A);
  A operator^(A); A operator&(A); A operator!=(A); A operator==(A);
  A operator<=(A); A operator<<(A); A operator+(A); A operator-(A);
  A operator*(A); A operator/(A); A operator%(A); A operator->*(A);
  A operator++(int); A operator--(int); A operator->(); A operator~();
  A operator!(); A operator<=>(A);
};
