/** @file brenn.h
 * The front-end of the library for C (and the C++ interface's base): checked entries
 * with plain names over the four services, in libbrenn. Including this header gives
 * all of them; each service also has its own header.
 *
 * | Service | Header | Names | Example |
 * |---|---|---|---|
 * | statuses | brenn_status.h | BRENN_OK, BRENN_ERR_*; brenn_status_name() | brenn_status_name(s) |
 * | vector math | brenn_vm.h | brenn_v<t><fn>(n, inputs..., results...), brenn_v<t><fn>_acc(...,
 * accuracy) | brenn_vdexp(n, a, y), brenn_vsexp_acc(n, a, y, BRENN_EP) | | vector-math settings |
 * brenn_vm.h | brenn_vm_<verb>_<what> | brenn_vm_set_split_work(w) | | random numbers |
 * brenn_rand.h | brenn_rng_<verb>, brenn_rng_<t><distribution> | brenn_rng_new(&s,
 * QES_BRNG_MT19937, 7), brenn_rng_duniform(s, 0, n, r, 0, 1) | | summary statistics | brenn_ss.h |
 * brenn_ss_<t><verb>, types brenn_ss_<t>matrix, brenn_ss_<t>results | brenn_ss_dcompute(&m,
 * BRENN_SS_MEAN, &r) | | data fitting | brenn_fit.h | brenn_fit_<t>spline_<verb>, kinds BRENN_FIT_*
 * | brenn_fit_dspline_new(&s, BRENN_FIT_LINEAR, nx, x, y, 0, 0, 0) |
 *
 * `<t>` is the type letter: s float, d double, c single complex (BrennComplex8),
 * z double complex (BrennComplex16), i integer; `<fn>` is the vector-math row's name in
 * lower case ("vdExp" is brenn_vdexp). Every entry returns an int status
 * (brenn_status.h); results go into the caller's arrays or out-parameters. Types are
 * plain C structs and opaque handles; no macro is needed to call anything.
 *
 * Threads: vector-math calls split long vectors over the service library's pool
 * (brenn_vm.h); statistics and fitting hand the pool's threading record to their
 * compute entries. brenn_serv_set_num_threads() bounds the pool. */
#ifndef BRENN_H
#define BRENN_H

#include "brenn_status.h"
#include "brenn_vm.h"
#include "brenn_rand.h"
#include "brenn_ss.h"
#include "brenn_fit.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Lowers (or, with 0, restores) the number of threads the front-end's parallel work
 * may use, the calling thread included.
 * @param limit the new limit, 0 for as many as the hardware has
 * @return the previous limit. */
int brenn_set_num_threads(int limit);

#ifdef __cplusplus
}
#endif

#endif
