#pragma once

#include <stdexcept>
#include <string>

namespace vexel {

// The one error of the report service; its message is its whole description.
class ReportError : public std::runtime_error {
public:
    explicit ReportError(const std::string& message)
        : std::runtime_error(message)
    {
    }

    [[nodiscard]] std::string message() const { return what(); }
};

} // namespace vexel
