// The server controller as start-up's form.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "serial/port_names.h"
#include "serial/serial_port.h"
#include "server/main_view.h"
#include "server/server_controller.h"
#include "startup/startup_form.h"

namespace velmora {

/// Start-up works on the controller, its view and its port. A program with a window adds what its window does
/// when it is loaded, shown, unloaded and put in its place. All that it is given must outlive it.
class ControllerForm : public StartupForm {
  public:
    /// What only a window does; each may be missing.
    struct WindowCalls {
        std::function<void()> load;
        std::function<void()> unload;
        std::function<void()> show;
        std::function<void()> loadWindowPos;
    };

    ControllerForm(ServerController& controller, MainView& view, ServerOptions& options, SerialPort& port,
                   PortNames& names, WindowCalls window = {})
        : controller_(controller),
          view_(view),
          options_(options),
          port_(port),
          names_(names),
          window_(std::move(window)) {}

    void load() override { call(window_.load); }
    void unload() override { call(window_.unload); }
    void show() override { call(window_.show); }
    void applyAutoStart() override {
        controller_.showLabelTexts();
        controller_.windowShown();
    }
    void setVersionTexts(const std::string& version, const std::string& build) override {
        view_.setVersion(version, build);
    }
    void setDebugMode(bool on) override { controller_.setDebugMode(on); }
    void loadWindowPos() override { call(window_.loadWindowPos); }
    ServerOptions& options() override { return options_; }
    SerialPort& port() override { return port_; }
    void setPortDevices(const PortDevices& devices) override { names_ = PortNames(devices); }
    int portNumber(const std::string& nameOrDevice) override { return names_.numberFor(nameOrDevice); }
    void checkPort(std::int16_t port, std::int16_t flags, std::int32_t& status) override {
        status = controller_.checkPort(port, flags);
    }
    void ShowClear() override { controller_.ShowClear(); }
    void ShowWarning(const std::string& text2, const std::string& text3) override {
        controller_.ShowWarning(text2, text3);
    }
    bool ended() const override { return controller_.closed(); }
    std::int32_t state() const override { return controller_.state(); }
    void setState(std::int32_t newState) override { controller_.setState(newState); }

  private:
    static void call(const std::function<void()>& action) {
        if (action) {
            action();
        }
    }

    ServerController& controller_;
    MainView& view_;
    ServerOptions& options_;
    SerialPort& port_;
    PortNames& names_;
    WindowCalls window_;
};

}  // namespace velmora
