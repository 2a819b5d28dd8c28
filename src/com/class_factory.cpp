#include "com/class_factory.h"

#include <atomic>

#include "com/guard.h"
#include "com/holders.h"
#include "com/module.h"
#include "com/smes_object.h"
#include "com/velor_com.h"

namespace velor::com {

namespace {

class ClassFactory final : public IClassFactory {
  public:
    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (id != IID_IUnknown && id != IID_IClassFactory) return E_NOINTERFACE;
        *object = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) override {
        if (object == nullptr) return E_POINTER;
        *object = nullptr;
        if (outer != nullptr) return CLASS_E_NOAGGREGATION;
        return guardedResult([&] { return createSmes(interfaceId, object); });
    }
    STDMETHODIMP LockServer(BOOL lock) override {
        if (!lock) return unlockModule() ? S_OK : E_UNEXPECTED;
        lockModule();
        return S_OK;
    }

  private:
    std::atomic<ULONG> references_ = 0;
    ModuleReference module_;
};

}  // namespace

HRESULT getClassObject(REFCLSID classId, REFIID interfaceId, void** object) {
    if (object == nullptr) return E_POINTER;
    *object = nullptr;
    if (classId != __uuidof(::Smes)) return CLASS_E_CLASSNOTAVAILABLE;
    auto* const factory = new ClassFactory;
    factory->AddRef();
    return ComPointer<ClassFactory>(factory)->QueryInterface(interfaceId, object);
}

}  // namespace velor::com
