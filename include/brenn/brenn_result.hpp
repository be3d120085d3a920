/** @file brenn_result.hpp
 * The C++ front-end's error values: brenn::status (a status code) and
 * brenn::result<T> (a status and a value). Nothing throws unless the caller asks,
 * with or_throw(), which throws brenn::error for a negative status. */
#ifndef BRENN_RESULT_HPP
#define BRENN_RESULT_HPP

#include <stdexcept>
#include <string>
#include <utility>

#include "brenn_status.h"

namespace brenn {

/** Thrown by or_throw() only. */
class error : public std::runtime_error {
  public:
    /** @param code the negative status */
    explicit error(int code)
        : std::runtime_error(std::string("brenn: ") + brenn_status_name(code) + " (" +
                             std::to_string(code) + ")"),
          code_(code) {}
    /** @return the status that was refused */
    int code() const noexcept { return code_; }

  private:
    int code_;
};

/** A status: 0 success, positive a warning or element status, negative an error. */
struct status {
    int code = BRENN_OK; /**< the C entry's status */
    /** @return true unless the status is an error (negative) */
    explicit operator bool() const noexcept { return code >= 0; }
    /** @return true for exactly BRENN_OK */
    bool ok() const noexcept { return code == BRENN_OK; }
    /** Throws brenn::error for a negative status. @return *this */
    const status& or_throw() const {
        if (code < 0) throw error(code);
        return *this;
    }
    friend bool operator==(status a, status b) noexcept { return a.code == b.code; }
    friend bool operator==(status a, int b) noexcept { return a.code == b; }
};

/** A status and a value; the value is meaningful when the status is not an error. */
template <class T>
struct result {
    status stat; /**< the call's status */
    T value{};   /**< the value it made */
    /** @return true unless the status is an error */
    explicit operator bool() const noexcept { return static_cast<bool>(stat); }
    /** Throws brenn::error for a negative status. @return the value */
    T& or_throw() & {
        stat.or_throw();
        return value;
    }
    /** Throws brenn::error for a negative status. @return the value */
    T&& or_throw() && {
        stat.or_throw();
        return std::move(value);
    }
};

} // namespace brenn

#endif
