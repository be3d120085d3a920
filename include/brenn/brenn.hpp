/** @file brenn.hpp
 * The C++20 front-end, header-only over the C one (brenn.h):
 * - brenn::vm::<fn>(spans..., [brenn::accuracy]) for every vector-math row
 *   (brenn_vm_entries.hpp), sizes checked;
 * - brenn::rng::stream, an owned stream that fills spans through the distributions
 *   and serves the standard library's distributions (brenn_rand.hpp);
 * - brenn::ss::compute(matrix_view, estimates) (brenn_ss.hpp); quantiles, sorted,
 *   median_abs_deviation, weighted_median and stream_quantiles (brenn_ss_order.hpp);
 * - brenn::fit::spline (brenn_fit.hpp).
 * Errors come back as brenn::status or brenn::result<T> (brenn_result.hpp); nothing
 * throws unless the caller calls or_throw(). */
#ifndef BRENN_HPP
#define BRENN_HPP

#include "brenn.h"
#include "brenn_result.hpp"
#include "brenn_vm_entries.hpp"
#include "brenn_rand.hpp"
#include "brenn_ss.hpp"
#include "brenn_ss_order.hpp"
#include "brenn_ss_robust.hpp"
#include "brenn_fit.hpp"

#endif
