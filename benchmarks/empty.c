/* A library with next to nothing in it, to time what loading any library costs. */
int emptyLibrary(void);
int emptyLibrary(void) { return 0; }
