#include "com/module.h"

#include <atomic>
#include <mutex>
#include <utility>

#include "com/holders.h"
#include "com/velor_com.h"
#include "platform/windows/library_file.h"
#include "platform/windows/wide_text.h"
#include "velor/run_time_error.h"

namespace velor::com {

namespace {

constexpr std::int32_t kErrorInLoadingDll = 48;

std::atomic<long> objects = 0, locks = 0;

std::mutex typeInformationMutex;
// Not owned by a holder: when the process ends, oleaut32 may be gone before this DLL.
ITypeInfo* keptTypeInformation = nullptr;

ITypeInfo* loadTypeInformation() {
    ITypeLib* library = nullptr;
    ITypeInfo* information = nullptr;
    if (FAILED(LoadTypeLibEx(platform::toWide(platform::libraryFile()).c_str(), REGKIND_NONE, &library)))
        throw RunTimeError(kErrorInLoadingDll, "VELOR", "Error in loading DLL");
    const ComPointer<ITypeLib> owned(library);
    if (FAILED(library->GetTypeInfoOfGuid(__uuidof(ISmes), &information)))
        throw RunTimeError(kErrorInLoadingDll, "VELOR", "Error in loading DLL");
    return information;
}

}  // namespace

void lockModule() { ++locks; }

bool unlockModule() {
    for (long held = locks; held > 0;)
        if (locks.compare_exchange_weak(held, held - 1)) return true;
    return false;
}

ModuleReference::ModuleReference() { ++objects; }
ModuleReference::~ModuleReference() { --objects; }

bool moduleIsIdle() {
    const std::lock_guard lock(typeInformationMutex);
    if (objects != 0 || locks != 0) return false;
    if (keptTypeInformation != nullptr) ComPointer<ITypeInfo>(std::exchange(keptTypeInformation, nullptr));
    return true;
}

ITypeInfo* typeInformation() {
    const std::lock_guard lock(typeInformationMutex);
    if (keptTypeInformation == nullptr) keptTypeInformation = loadTypeInformation();
    keptTypeInformation->AddRef();
    return keptTypeInformation;
}

}  // namespace velor::com
