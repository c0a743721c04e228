// Examining a serial port of this computer.
#pragma once

#include <functional>
#include <string>

#include "base/event_yield.h"
#include "doctor/diagnosis.h"
#include "doctor/examined_line.h"
#include "serial/mode_string.h"
#include "serial/port_names.h"

namespace velmora {

struct ExaminedPort {
    PortNames& names;
    int number = 0;
    std::string shown;      ///< what messages call a port without a device
    LineSettings settings;  ///< that the server is to use
};

/// What an examination needs beside the port; all must outlive it.
struct ExaminationParts {
    EventYield& yield;                        ///< its events run while the line is waited for
    std::function<ExaminedLine::Time()> now;  ///< a time that only grows
    StepObserver* observer = nullptr;         ///< may be none
    std::function<bool()> stopWanted = {};    ///< as StoppableLine has it
};

/// Examines a port that nobody has open, and closes it. Throws ExaminationStopped.
Diagnosis examinePort(const ExaminedPort& port, const ExaminationParts& parts);

}  // namespace velmora
