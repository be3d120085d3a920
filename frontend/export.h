/* How the front-end library exports a name: C linkage and default visibility; every
 * other symbol of the library stays hidden. */
#ifndef BRENN_FRONTEND_EXPORT_H
#define BRENN_FRONTEND_EXPORT_H

#define BRENN_FE_EXPORT extern "C" __attribute__((visibility("default")))

#endif
