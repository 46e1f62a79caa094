#pragma once

#include "look/Dial.h"

#include <QWidget>

namespace vexel {

// A dial as a widget, for pages to lay out.
class DialView final : public QWidget {
public:
    DialView(Appearance appearance, QWidget* parent);

    void setDial(Dial dial);
    [[nodiscard]] const Dial& dial() const { return m_dial; }
    [[nodiscard]] QSize sizeHint() const override { return {132, 132}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Appearance m_appearance;
    Dial m_dial;
};

} // namespace vexel
