#include <sys/prctl.h>

int prctl(int, ...) {
    return 0; // here no process has a parent that could end before it
}
