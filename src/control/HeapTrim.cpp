#include "HeapTrim.h"

#include <cstdlib> // names the C library, so that __GLIBC__ is known below
#if defined(__GLIBC__)
#include <malloc.h>
#endif

void HeapTrim::releaseFreePages()
{
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}
