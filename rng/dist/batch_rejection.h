/* The batch driver of the discrete rejection methods (BTPE, H2PE): candidates from
 * pairs of single uniforms in batches of up to 1024 pairs, the logarithms of the
 * uniforms and of the undecided test values through the single LA Ln kernel on the
 * whole batch, and the accepted values written in the order of their pairs. What a
 * batch accepts beyond the n wanted is dropped. */
#ifndef BRENN_RNG_DIST_BATCH_REJECTION_H
#define BRENN_RNG_DIST_BATCH_REJECTION_H

#include <stdint.h>

#include "brenn_rng.h"
#include "rng/dist/frame.h"

namespace brenn::rng {

constexpr int32_t kRejectionPairs = 1024;

enum Verdict : int8_t { Reject = 0, Accept = 1, Undecided = 2 };

// `Way` decides a pair: Candidate(u, v, ln v, &y, &w) gives a verdict, and for an
// undecided one the test value w whose logarithm Final(y, ln w) then judges. A way
// may first take the whole batch in Quick(pairs, u, v, y, verdict, rest): it decides
// the pairs it can, as Candidate would, and lists the others in `rest`, in order,
// returning their count.
template <typename Way>
int32_t RunRejectionBatches(const Way& way, void* stream, int32_t n, int32_t* r) {
    float words[2 * kRejectionPairs];
    float logs[kRejectionPairs];
    float tests[kRejectionPairs];
    int32_t y[kRejectionPairs] = {}; // a rejected pair's value is stored, then overwritten
    int32_t open[kRejectionPairs];
    int8_t verdict[kRejectionPairs];
    auto ln = ZAR_SLOT(sLn, brenn::frame::SlotLA);
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        const int32_t pairs = n - done < kRejectionPairs ? n - done : kRejectionPairs;
        status = _qessRngUniform(0, stream, 2 * pairs, words, 0.0f, 1.0f);
        if (status < 0) return status;
        // u to the front half, v to the back half, in place.
        for (int32_t i = 0; i < pairs; ++i)
            logs[i] = words[2 * i + 1];
        for (int32_t i = 0; i < pairs; ++i)
            words[i] = words[2 * i];
        float* v = words + kRejectionPairs;
        for (int32_t i = 0; i < pairs; ++i)
            v[i] = logs[i];
        Bracketed(ln, static_cast<int>(pairs), v, logs);
        int32_t opened = 0;
        if constexpr (requires { way.Quick(pairs, words, v, y, verdict, open); }) {
            // The way decides the easy candidates of the whole batch at once and lists
            // the others, in their order, for Candidate.
            const int32_t rest = way.Quick(pairs, words, v, y, verdict, open);
            for (int32_t j = 0; j < rest; ++j) {
                const int32_t i = open[j];
                verdict[i] = way.Candidate(words[i], v[i], logs[i], &y[i], &tests[opened]);
                if (verdict[i] == Undecided) open[opened++] = i;
            }
        } else {
            for (int32_t i = 0; i < pairs; ++i) {
                verdict[i] = way.Candidate(words[i], v[i], logs[i], &y[i], &tests[opened]);
                if (verdict[i] == Undecided) open[opened++] = i;
            }
        }
        if (opened > 0) {
            Bracketed(ln, static_cast<int>(opened), tests, tests);
            for (int32_t j = 0; j < opened; ++j)
                verdict[open[j]] = way.Final(y[open[j]], tests[j]) ? Accept : Reject;
        }
        // A batch has no more pairs than variates still wanted, so every accepted value
        // fits: each pair's value is stored, and kept when accepted.
        for (int32_t i = 0; i < pairs; ++i) {
            r[done] = y[i];
            done += verdict[i] == Accept;
        }
    }
    return status;
}

} // namespace brenn::rng

#endif
