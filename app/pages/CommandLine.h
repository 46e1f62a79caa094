#pragma once

#include <QWidget>

#include <functional>
#include <string>

class QLabel;

namespace vexel {

// A command to paste into a terminal: fixed-width, selectable, and with a
// Copy button that hands the command to `copy` (no button without one).
class CommandLine final : public QWidget {
public:
    explicit CommandLine(QWidget* parent, std::function<void(const std::string&)> copy = {});

    void setText(const QString& command);
    [[nodiscard]] QString text() const;

private:
    QLabel* m_command = nullptr;
};

} // namespace vexel
