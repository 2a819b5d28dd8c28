// The error trap of the methods.
#pragma once

#include <optional>
#include <string>

#include "object/load.h"
#include "object/messages.h"
#include "object/state.h"
#include "runtime/checked.h"
#include "runtime/numbers.h"
#include "velor/variant.h"

namespace velor {

// A number of the host's, converted where it is first needed, or one of our own.
class HostNumber {
  public:
    HostNumber(const Variant& value) : host_(&value) {}
    HostNumber(double value) : own_(value) {}

    double toDouble() const { return host_ ? host_->toDouble() : own_; }

    // For a trap's title; an argument that is no number stands there as it was given.
    std::string text(const char* pattern) const {
        try {
            return Format(toDouble(), pattern);
        } catch (const RunTimeError&) {
            return host_ && host_->kind() == Variant::Kind::Text ? host_->toText() : std::string();
        }
    }

  private:
    const Variant* host_ = nullptr;
    double own_ = 0.0;
};

inline std::string titleAtTemperature(const char* method, const HostNumber& T) {
    return std::string("VELOR - ") + method + "; T(K)= " + T.text("#0.0");
}

inline Variant asVariant(const std::optional<double>& value) { return value ? Variant(*value) : Variant(); }

// What becomes of an error that was raised to the host on purpose below the trap.
enum class Raised { Retold, Passed };

// The trap: runs the body; a run-time error goes to the shared reporter under the title, and the result is another one.
template <Raised raised, class Result, class Title, class Body>
Result trappedOr(Result otherwise, const Messages& messages, const Title& title, const Body& body) {
    try {
        return body();
    } catch (const RunTimeError& error) {
        if (raised == Raised::Passed && error.number() == RunTimeError::kRaisedToHost) throw;
        ChybaVypoctu(messages, error, title());
        return otherwise;
    }
}

// Around a body that yields one number, or none. After an error there is none; an empty result counts as 0 in the
// caller's arithmetic.
template <class Title, class Body>
std::optional<double> trapped(const Messages& messages, const Title& title, const Body& body) {
    return trappedOr<Raised::Retold>(std::optional<double>(), messages, title, [&]() -> std::optional<double> {
        const std::optional<double> value = body();
        if (value) checked::finite(*value);
        return value;
    });
}

// The public method around a body: the records are loaded first, inside the trap. Empty after an error.
template <class Title, class Body>
Variant trappedMethod(State& state, const Title& title, const Body& body) {
    const PublicCall call(state);
    return asVariant(trapped(state.messages, title, [&]() -> std::optional<double> {
        loadComponents(state);
        return body();
    }));
}

// The same for a method without a trap.
template <class Body>
Variant method(State& state, const Body& body) {
    const PublicCall call(state);
    loadComponents(state);
    const std::optional<double> value = body();
    if (value) checked::finite(*value);
    return asVariant(value);
}

}  // namespace velor
