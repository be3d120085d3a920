// Message texts of the kernel library and the printer that formats them by number.
// Kernels pass only numbers and values; every word a user reads lives here.
#include <cstdarg>
#include <cstdio>
#include <unistd.h>

#include "platform/serv.h"

namespace {

enum class Args { None, Name, NameIndex, IndexValue };

struct Message {
    int number;
    Args args;
    const char* text;
};

// The value lines name what they show; the index is the element's position in the
// caller's whole vector.
constexpr Message kMessages[] = {
    {735, Args::NameIndex, "%s: argument %d has a bad size"},
    {736, Args::Name, "%s: a pointer argument is null"},
    {737, Args::Name, "%s: domain error: an argument lies outside the function's domain"},
    {738, Args::Name, "%s: singularity: the function has a pole at an argument"},
    {739, Args::Name, "%s: overflow: a result is too large to represent"},
    {740, Args::Name, "%s: underflow: a result is too small to represent in full precision"},
    {741, Args::Name, "%s: unknown error"},
    {742, Args::IndexValue, "    argument[%d] = %.17g"},
    {743, Args::IndexValue, "    result[%d] = %.17g"},
    {744, Args::IndexValue, "    argument[%d] = %.17g"},
    {745, Args::IndexValue, "    first result[%d] = %.17g"},
    {746, Args::IndexValue, "    second result[%d] = %.17g"},
    {747, Args::IndexValue, "    first argument[%d] = %.17g"},
    {748, Args::IndexValue, "    second argument[%d] = %.17g"},
    {749, Args::IndexValue, "    result[%d] = %.17g"},
    {750, Args::IndexValue, "    first argument[%d] = %.17g"},
    {751, Args::IndexValue, "    second argument[%d] = %.17g"},
    {752, Args::IndexValue, "    first result[%d] = %.17g"},
    {753, Args::IndexValue, "    second result[%d] = %.17g"},
    {760, Args::None, "vector mathematics: cannot obtain the per-thread memory of the calling thread"},
};

const Message* Find(int number) {
    for (const Message& m : kMessages)
        if (m.number == number) return &m;
    return nullptr;
}

void WriteAll(const char* text, size_t length) {
    while (length > 0) {
        ssize_t n = write(2, text, length);
        if (n <= 0) return;
        text += n;
        length -= static_cast<size_t>(n);
    }
}

} // namespace

extern "C" void brenn_serv_print(int first, int number, int count, ...) {
    (void)first;
    char line[512];
    int length = 0;
    const Message* m = Find(number);
    va_list ap;
    va_start(ap, count);
    if (m == nullptr) {
        length = snprintf(line, sizeof line, "message %d", number);
    } else if (m->args == Args::Name && count >= 1) {
        const char* name = va_arg(ap, const char*);
        length = snprintf(line, sizeof line, m->text, name ? name : "");
    } else if (m->args == Args::NameIndex && count >= 2) {
        const char* name = va_arg(ap, const char*);
        int index = va_arg(ap, int);
        length = snprintf(line, sizeof line, m->text, name ? name : "", index);
    } else if (m->args == Args::IndexValue && count >= 2) {
        int index = va_arg(ap, int);
        double value = va_arg(ap, double);
        length = snprintf(line, sizeof line, m->text, index, value);
    } else if (m->args == Args::None) {
        length = snprintf(line, sizeof line, "%s", m->text);
    } else {
        length = snprintf(line, sizeof line, "message %d", number);
    }
    va_end(ap);
    if (length < 0) return;
    if (length > static_cast<int>(sizeof line) - 2) length = static_cast<int>(sizeof line) - 2;
    line[length++] = '\n';
    WriteAll(line, static_cast<size_t>(length));
}
