#if X
#ifdef Y
#ifndef Z
# if defined(A) && \
 B
#ifoo
int a;
