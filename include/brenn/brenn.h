// clang-format off
/** @file brenn.h
 * The front-end of the library for C (and the C++ interface's base): checked entries
 * with plain names over the four services, in libbrenn. Including this header gives
 * all of them; each service also has its own header.
 *
 * | Service | Header | Names | Example |
 * |---|---|---|---|
 * | statuses | brenn_status.h | BRENN_OK, BRENN_ERR_*; brenn_status_name() | brenn_status_name(s) |
 * | vector math | brenn_vm.h | brenn_vm_<fn>_<t>(n, inputs..., results...), brenn_vm_<fn>_<t>_acc(..., accuracy) | brenn_vm_exp_f64(n, a, y), brenn_vm_exp_f32_acc(n, a, y, BRENN_EP) |
 * | vector-math settings | brenn_vm.h | brenn_vm_<verb>_<what> | brenn_vm_set_split_work(w) |
 * | random numbers | brenn_rand.h | brenn_rng_<verb> (streams; brenn_rand_abstract.h: brenn_rng_new_abstract_<t>), brenn_rng_<distribution>_<t> (brenn_rand_cont.h: the continuous ones) | brenn_rng_new(&s, QES_BRNG_MT19937, 7), brenn_rng_uniform_f64(s, 0, n, r, 0, 1) |
 * | summary statistics | brenn_ss.h, brenn_ss_order.h, brenn_ss_stream.h | brenn_ss_compute_<t>, brenn_ss_quantiles_<t>, brenn_ss_order_statistics_<t>, brenn_ss_sort_<t>, brenn_ss_mad_<t>, brenn_ss_weighted_median_<t>, brenn_ss_stream_<verb>_<t>, types brenn_ss_matrix_<t>, brenn_ss_results_<t>, brenn_ss_stream_<t> | brenn_ss_compute_f64(&m, BRENN_SS_MEAN, &r) |
 * | data fitting | brenn_fit.h | brenn_fit_spline_<verb>_<t>, type brenn_fit_spline_<t>, kinds BRENN_FIT_* | brenn_fit_spline_new_f64(&s, BRENN_FIT_LINEAR, nx, x, y, 0, 0, 0) |
 *
 * `<t>` is the element type: f32 float, f64 double, c64 single complex (BrennComplex8),
 * c128 double complex (BrennComplex16), i32, u32 and u64 the integer words; `<fn>` is the
 * vector-math function's name in lower case (the double Exp row's entries are
 * brenn_vm_exp_f64 and brenn_vm_exp_f64_acc, complex MulByConj's brenn_vm_mulbyconj_c128).
 * Every entry returns an int status (brenn_status.h); results go into the caller's arrays
 * or out-parameters. Types are plain C structs and opaque handles; no macro is needed to
 * call anything.
 *
 * Threads: vector-math calls split long vectors over the service library's pool
 * (brenn_vm.h); statistics and fitting hand the pool's threading record to their
 * compute entries. brenn_serv_set_num_threads() bounds the pool. */
// clang-format on
#ifndef BRENN_H
#define BRENN_H

#include "brenn_status.h"
#include "brenn_vm.h"
#include "brenn_rand.h"
#include "brenn_rand_cont.h"
#include "brenn_rand_abstract.h"
#include "brenn_ss.h"
#include "brenn_ss_order.h"
#include "brenn_ss_stream.h"
#include "brenn_ss_robust.h"
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
