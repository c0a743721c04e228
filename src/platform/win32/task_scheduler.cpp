#include "platform/win32/task_scheduler.h"

#include <windows.h>
// They need windows.h before them.
#include <oleauto.h>
#include <taskschd.h>

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

#include "platform/win32/ansi_text.h"

namespace velmora {
namespace {

struct ComRelease {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using ComPointer = std::unique_ptr<Interface, ComRelease>;

struct BstrDeleter {
    void operator()(OLECHAR* text) const { SysFreeString(text); }
};
using Bstr = std::unique_ptr<OLECHAR, BstrDeleter>;

Bstr bstrOf(const std::string& utf8) {
    return Bstr(SysAllocString(wideFromUtf8(utf8).c_str()));
}

/// COM for this thread, which may have it already.
class ComHere {
  public:
    ComHere() : entered_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~ComHere() {
        if (entered_) {
            CoUninitialize();
        }
    }
    ComHere(const ComHere&) = delete;
    ComHere& operator=(const ComHere&) = delete;

  private:
    bool entered_;
};

void require(HRESULT result) {
    if (result == E_ACCESSDENIED) {
        throw std::runtime_error(
            "Windows lets only an administrator do that: open the command prompt as administrator, and enter "
            "it again.");
    }
    if (FAILED(result)) {
        std::array<char, 9> number{};
        std::snprintf(number.data(), number.size(), "%08X", static_cast<unsigned>(result));
        throw std::runtime_error("The Task Scheduler refuses with error 0x" + std::string(number.data()) +
                                 ".");
    }
}

bool isMissing(HRESULT result) {
    return result == HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND);
}

VARIANT nothing() {
    VARIANT variant;
    VariantInit(&variant);
    return variant;
}

ComPointer<ITaskFolder> topFolder() {
    ITaskService* made = nullptr;
    require(CoCreateInstance(__uuidof(TaskScheduler), nullptr, CLSCTX_INPROC_SERVER, __uuidof(ITaskService),
                             reinterpret_cast<void**>(&made)));
    const ComPointer<ITaskService> service(made);
    require(service->Connect(nothing(), nothing(), nothing(), nothing()));
    ITaskFolder* folder = nullptr;
    require(service->GetFolder(bstrOf("\\").get(), &folder));
    return ComPointer<ITaskFolder>(folder);
}

}  // namespace

void registerTask(const std::string& name, const std::string& definition) {
    const ComHere com;
    IRegisteredTask* made = nullptr;
    require(topFolder()->RegisterTask(bstrOf(name).get(), bstrOf(definition).get(), TASK_CREATE_OR_UPDATE,
                                      nothing(), nothing(), TASK_LOGON_INTERACTIVE_TOKEN, nothing(), &made));
    const ComPointer<IRegisteredTask> task(made);
}

bool deleteTask(const std::string& name) {
    const ComHere com;
    const HRESULT result = topFolder()->DeleteTask(bstrOf(name).get(), 0);
    if (isMissing(result)) {
        return false;
    }
    require(result);
    return true;
}

std::optional<std::string> registeredTask(const std::string& name) {
    const ComHere com;
    IRegisteredTask* found = nullptr;
    const HRESULT result = topFolder()->GetTask(bstrOf(name).get(), &found);
    if (isMissing(result)) {
        return std::nullopt;
    }
    require(result);
    const ComPointer<IRegisteredTask> task(found);
    BSTR text = nullptr;
    require(task->get_Xml(&text));
    return utf8FromWide(Bstr(text).get());
}

}  // namespace velmora
