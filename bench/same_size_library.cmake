# cmake -D LIBRARY=FILE -D SOURCE=FILE -P same_size_library.cmake: writes the source of an empty library that has the
# size of LIBRARY.
file(SIZE ${LIBRARY} size)
file(CONFIGURE OUTPUT ${SOURCE} CONTENT [[
// As large as the library that it is compared with, but empty.
extern const char nothing[@size@];
const char nothing[@size@] = {1};
]] @ONLY)
