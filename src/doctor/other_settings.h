// Looking for the Organiser with other settings than the server's.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "doctor/diagnosis.h"
#include "doctor/line_probe.h"
#include "doctor/unframed.h"

namespace velmora {

/// Tries settings on an open line until the Organiser is heard with some. The line is left with the last
/// ones.
class OtherSettings {
  public:
    using Found = std::optional<Verdict>;

    /// `wanted` are the server's settings; all must outlive this object.
    OtherSettings(LineProbe& probe, const LineSettings& wanted, Findings& findings)
        : probe_(probe), wanted_(wanted), findings_(findings) {}

    /// Listens with the settings that `likely` tells of, and is surer when frames come.
    Verdict confirm(const Unframed& likely);

    enum class Rates { Usual, SlowerFirst, FasterFirst };
    /// Listens at other rates: the usual ones, or all of them, those below or above ours first.
    Found tryRates(Rates rates);

    /// Listens with other parities and numbers of bits, as far as the device has them, until one is answered.
    Found tryForms();

  private:
    std::vector<std::uint32_t> inTurn(Rates rates) const;
    Heard glance();
    Verdict found(DoctorStep step, Cause cause, int confidence, const LineSettings& settings);

    LineProbe& probe_;
    const LineSettings& wanted_;
    Findings& findings_;
};

}  // namespace velmora
