#include "com/guard.h"

#include <windows.h>
#include <xmmintrin.h>

#include <array>
#include <cstdint>
#include <new>
#include <string>
#include <string_view>

#include "com/holders.h"
#include "com/variant_conversion.h"
#include "com/velor_com.h"
#include "velor/run_time_error.h"

namespace velor::com {

namespace {

// Hosts may have unmasked floating-point traps or chosen another precision or rounding. By the instructions themselves:
// the C library's functions ask the processor for its kind each time, which a virtual machine answers in microseconds.
class DefaultFloatingPoint {
  public:
    DefaultFloatingPoint() {
        // With the full precision that the mathematical functions need, everything masked.
        asm volatile("fnstenv %0\n\tfninit" : "=m"(host_)::"memory");
        _mm_setcsr(kDefaultMxcsr);
    }
    ~DefaultFloatingPoint() {
        asm volatile("fldenv %0" ::"m"(host_) : "memory");
        _mm_setcsr(hostMxcsr_);
    }
    DefaultFloatingPoint(const DefaultFloatingPoint&) = delete;
    DefaultFloatingPoint& operator=(const DefaultFloatingPoint&) = delete;

  private:
    static constexpr unsigned kDefaultMxcsr = 0x1F80;  // everything masked, to the nearest, subnormals kept

    unsigned hostMxcsr_ = _mm_getcsr();
    std::array<std::uint32_t, 7> host_;  // the x87 unit's control, status and tags, and its last instruction
};

// Where even this fails the host still has the code.
void setErrorInformation(std::string_view source, std::string_view description) noexcept try {
    SetErrorInfo(0, nullptr);  // never that of an earlier failure
    ICreateErrorInfo* created = nullptr;
    if (FAILED(CreateErrorInfo(&created))) return;
    const ComPointer<ICreateErrorInfo> information(created);
    created->SetGUID(__uuidof(ISmes));
    created->SetSource(toBstr(std::string(source)).get());
    created->SetDescription(toBstr(std::string(description)).get());
    IErrorInfo* error = nullptr;
    if (FAILED(created->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&error)))) return;
    const ComPointer<IErrorInfo> owned(error);
    SetErrorInfo(0, error);
} catch (const std::bad_alloc&) {
}

HRESULT codeOf(std::int32_t number) {
    return number > 0 ? MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number) : static_cast<HRESULT>(number);
}

constexpr std::int32_t kOutOfMemory = 7, kInternalError = 51;

}  // namespace

HRESULT guardedCall(void (*body)(void*), void* context) noexcept {
    const DefaultFloatingPoint ours;
    try {
        body(context);
        return S_OK;
    } catch (const RunTimeError& error) {
        setErrorInformation(error.source(), error.description());
        return codeOf(error.number());
    } catch (const std::bad_alloc&) {
        setErrorInformation("VELOR", "Out of memory");
        return codeOf(kOutOfMemory);
    } catch (...) {
        setErrorInformation("VELOR", "Internal error");
        return codeOf(kInternalError);
    }
}

}  // namespace velor::com
