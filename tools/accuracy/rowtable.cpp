// The tools' row table, made from tools/accuracy/rows.def. The list names each row by
// the key of frame/rows.def, so a row missing, misspelt, repeated or out of order there
// is a build error here: the tools cannot skip a row silently.
#include "tools/accuracy/rowtable.h"

#include <string.h>

#include "frame/dispatch.h"

namespace brenn::tools {

namespace {

// One entry; an empty name in the list is "none".
constexpr RowFacts Entry(const char* row, Ref ref, Rule rule, Dom dom, double lo, double hi,
                         double blo, double bhi, const char* sleef, const char* mvec,
                         const char* libm, const char* family) {
    auto orNull = [](const char* s) { return s[0] ? s : nullptr; };
    return {row, ref, rule,          dom,          lo,           hi,
            blo, bhi, orNull(sleef), orNull(mvec), orNull(libm), orNull(family)};
}

const RowFacts kFacts[] = {
#define ROW(t, Fn, ref, rule, dom, lo, hi, blo, bhi, sleef, mvec, libm, family)                    \
    Entry(#t #Fn, Ref::ref, Rule::rule, Dom::dom, lo, hi, blo, bhi, sleef, mvec, libm, family),
#include "tools/accuracy/rows.def"
#undef ROW
};

// The dispatch row of each line of the list, in list order.
constexpr frame::RowIndex kListed[] = {
#define ROW(t, Fn, ...) frame::Row_##t##Fn,
#include "tools/accuracy/rows.def"
#undef ROW
};

constexpr bool InDispatchOrder() {
    for (int i = 0; i < frame::RowCount; ++i)
        if (kListed[i] != i) return false;
    return true;
}

static_assert(sizeof(kListed) / sizeof(kListed[0]) == frame::RowCount,
              "tools/accuracy/rows.def needs one line a row of frame/rows.def");
static_assert(InDispatchOrder(), "tools/accuracy/rows.def lists the rows out of order");

} // namespace

const RowFacts* FindRowFacts(const char* row) {
    for (const RowFacts& f : kFacts)
        if (strcmp(f.row, row) == 0) return &f;
    return nullptr;
}

const RowFacts* AllRowFacts(int* count) {
    *count = static_cast<int>(sizeof(kFacts) / sizeof(kFacts[0]));
    return kFacts;
}

} // namespace brenn::tools
