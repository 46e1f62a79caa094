#pragma once

#include <QString>

#include <string>

namespace vexel {

// A text of the core (UTF-8) as Qt's string.
[[nodiscard]] inline QString qs(const std::string& text)
{
    return QString::fromStdString(text);
}

} // namespace vexel
