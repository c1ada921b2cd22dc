void *operator new(size_t n);
void *operator new[](size_t n) { }
void operator delete(void *p) noexcept;
void A::operator delete[](void *p) { }
