/* Marks a function or object as part of the kernel library's exported boundary.
 * Everything else is hidden; the version script lists the same names. */
#ifndef BRENN_FRAME_EXPORT_H
#define BRENN_FRAME_EXPORT_H

#define BRENN_EXPORT extern "C" __attribute__((visibility("default")))

#endif
