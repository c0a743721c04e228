#include "doctor/port_examination.h"

#include "doctor/comm_examined_line.h"
#include "doctor/device_lookup.h"
#include "doctor/line_doctor.h"
#include "doctor/stoppable_line.h"
#include "serial/comm_device.h"

namespace velmora {

Diagnosis examinePort(const ExaminedPort& port, const ExaminationParts& parts) {
    const ExaminedDevice device = lookUpDevice(port.names, port.number, port.shown);
    const auto comm = makeCommDevice(port.names);
    CommExaminedLine line(*comm, "COM" + std::to_string(port.number), device.name, parts.yield, parts.now);
    StoppableLine stoppable(line, parts.stopWanted);
    return LineDoctor(device, stoppable, port.settings, parts.observer).examine();
}

}  // namespace velmora
