// The thread-state pieces of the distribution frame: the error mode with its
// sentinel callback and the bracket around kernel calls. Both restore the mode word
// as a whole, since the field-wise SetMode leaves a field that was empty before.
#include "frame/context.h"
#include "frame/mode.h"
#include "rng/dist/frame.h"

namespace brenn::rng {

ErrorFrame ErrorModeEnter(ErrorCallback sentinel) {
    frame::ThreadContext* c = frame::GetThreadContext();
    ErrorFrame f{frame::ThreadMode(c), c->errorCallback};
    frame::SetMode(kDistErrorMode);
    c->errorCallback = sentinel;
    return f;
}

void ErrorModeLeave(const ErrorFrame& f) {
    frame::ThreadContext* c = frame::GetThreadContext();
    c->errorCallback = f.savedCallback; // the callback first, the mode word after it
    c->mode = f.savedMode;
}

uint32_t BracketEnter() {
    uint32_t old = frame::ThreadMode();
    frame::SetMode(kKernelDenormalMode);
    return old;
}

void BracketLeave(uint32_t saved) {
    frame::GetThreadContext()->mode = saved;
}

} // namespace brenn::rng
