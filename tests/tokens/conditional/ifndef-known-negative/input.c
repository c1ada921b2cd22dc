#ifndef _LIBCPP_CXX03_LANG
int a;
#if defined(_LIBCPP_CXX03_LANG)
int b;
