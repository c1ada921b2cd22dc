#include "a.h" /* here,
                * not above */
BEGIN_DECLS
extern const A a[];
#if B /* C
 */
int b;
#endif /* B
# define C */
#define D /* d
 */ 1
int e;
