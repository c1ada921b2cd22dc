#include <a> /* b
c */ d
