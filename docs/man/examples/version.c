#include <stdio.h>
#include "zulgenpx.h"

int main(void) {
    const LibVersion *version = zulgenGetLibVersion();
    printf("%d.%d\n", (int)version->major, (int)version->minor);  /* prints 7.0 */
    return version->major == ZULG_VERSION_MAJOR ? 0 : 1;
}
