/* A library with next to nothing in it: what loading costs before there is anything to load. */
int emptyLibrary(void);
int emptyLibrary(void) { return 0; }
