// What the desktop program tells of itself.
#pragma once

#include <QString>
#include <QWidget>
#include <string>
#include <vector>

#include "apps/desktop_help.h"
#include "apps/platform_parts.h"
#include "apps/server_program.h"
#include "capture/capture_ring.h"
#include "startup/run_overrides.h"
#include "ui/about_text.h"

namespace velmora {

/// The dialog about a running server, with a report of it for the clipboard. All that it is given must
/// outlive it.
class DesktopAbout {
  public:
    /// The server's trace is kept for the report from now on. `overrides`: those that the server was given.
    DesktopAbout(PlatformParts& platform, ServerProgram& program, RunOverrides overrides,
                 const CaptureRing& captured, const DesktopHelp& help);

    /// Shows the dialog over the window until the user closes it.
    void show(QWidget& window);

  private:
    std::vector<NamedText> places() const;
    std::string report(const QString& capture) const;
    std::string settings() const;

    PlatformParts& platform_;
    ServerProgram& program_;
    RunOverrides overrides_;
    const CaptureRing& captured_;
    const DesktopHelp& help_;
};

}  // namespace velmora
