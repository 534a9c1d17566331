#pragma once

#include <QString>

// Whether a camera of this name, as the device list has it, is the maker's own document camera.
inline bool isDocumentCamera(const QString &deviceName)
{
    return deviceName.contains(QLatin1String("Veltrix CX-20"));
}
