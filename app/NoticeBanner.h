#pragma once

#include "Appearance.h"
#include "spikes/Strain.h"

#include <QFrame>

#include <optional>
#include <string>
#include <vector>

class QVBoxLayout;

namespace vexel {

// What the window has to say until it is dealt with, in a strip above the
// page, so that it never covers a figure: the history's failure (in red,
// there while it lasts) and notices the user closes (in amber: values of the
// settings file that were not used). Takes no room when there is nothing.
class NoticeBanner final : public QFrame {
    Q_OBJECT

public:
    explicit NoticeBanner(QWidget* parent);

    void show(const std::optional<std::string>& error, const std::vector<std::string>& notices);
    // The lines shown, the error first.
    [[nodiscard]] QStringList texts() const;

signals:
    void noticeClosed(int index);

private:
    void addRow(const QString& text, Strain strain, std::optional<int> closes);

    QVBoxLayout* m_rows = nullptr;
};

} // namespace vexel
