#ifndef FITTINGS_BASE_EXPORT_H_
#define FITTINGS_BASE_EXPORT_H_

/// Marks a class, function or variable that the library exports. Everything else is hidden.
#define FITTINGS_API __attribute__((visibility("default")))

#endif
