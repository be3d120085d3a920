// The sentinel callbacks of the distribution generators. Their values are the
// logarithm of the smallest positive number of each precision and the inverse
// error function at the largest argument below 1 that the precision can tell from
// 1: a uniform of exactly 0 or 1 then gives a finite, extreme variate.
#include <string.h>

#include "rng/dist/frame.h"

namespace brenn::rng {

namespace {

double FromBits(uint64_t bits) {
    double d;
    memcpy(&d, &bits, sizeof d);
    return d;
}

float FromBits(uint32_t bits) {
    float f;
    memcpy(&f, &bits, sizeof f);
    return f;
}

const double kLogMinD = FromBits(uint64_t{0xC0874385446D71C3});    // -744.44007192138122
const double kLogMinS = FromBits(uint32_t{0xC2CE8ED0});            // -103.2789306640625
const double kErfInvMaxD = FromBits(uint64_t{0x4017744F8F74E94A}); // 5.8635847487551676
const double kErfInvMaxS = FromBits(uint32_t{0x407547CB});         // 3.832507...

void Write(ErrorRecord* record, double value) {
    record->r1 = value;
    record->r2 = value;
}

int Gaussian(ErrorRecord* record, double logMin, double erfInvMax) {
    if (record->code == 2 && record->a1 == 0.0) {
        Write(record, logMin);
    } else if (record->code == 2 || record->code == 1) {
        Write(record, record->a1 < 0.0 ? -erfInvMax : erfInvMax);
    }
    return 0;
}

} // namespace

int LogZeroCallbackD(ErrorRecord* record) {
    Write(record, kLogMinD);
    return 0;
}

int LogZeroCallbackS(ErrorRecord* record) {
    Write(record, kLogMinS);
    return 0;
}

int LogZeroOnlyCallbackD(ErrorRecord* record) {
    if (record->code == 2) Write(record, kLogMinD);
    return 0;
}

int LogZeroOnlyCallbackS(ErrorRecord* record) {
    if (record->code == 2) Write(record, kLogMinS);
    return 0;
}

int GaussianCallbackD(ErrorRecord* record) {
    return Gaussian(record, kLogMinD, kErfInvMaxD);
}

int GaussianCallbackS(ErrorRecord* record) {
    return Gaussian(record, kLogMinS, kErfInvMaxS);
}

} // namespace brenn::rng
