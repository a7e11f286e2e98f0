# cmake -D LIBRARY=FILE -D SOURCE=FILE -P same_size_library.cmake: writes the source of an empty library that has the
# size of LIBRARY.
file(SIZE ${LIBRARY} size)
file(CONFIGURE OUTPUT ${SOURCE} CONTENT [[
// As large as the library it is held against, without anything in it.
extern const char nothing[@size@];
const char nothing[@size@] = {1};
]] @ONLY)
