#pragma once

#include "Appearance.h"
#include "panel/MenuReading.h"
#include "platform/linux/PanelShade.h"

#include <QIcon>
#include <QImage>

namespace vexel {

// The picture of one panel item. Panels give status icons a square slot, so
// the picture is a square: the kind's short name over its value, two stacked
// values for rates in and out (marked with a triangle down and up for the
// network, R and W for the disk), the recent trace for a graph, or the value
// over a faint graph for both. A calm reading is drawn in the panel's own
// text colour (light on a dark panel), an elevated one amber, a strained one
// red.
struct MenuGlyph {
    static constexpr int side = 22; // logical pixels

    // The picture at `scale` device pixels per logical pixel (1 or 2).
    [[nodiscard]] static QImage image(const MenuReading& reading, Appearance panel, qreal scale);
    // Both scales in one icon, for the panel to pick.
    [[nodiscard]] static QIcon icon(const MenuReading& reading, Appearance panel);
    // The colour a reading is drawn in on a panel.
    [[nodiscard]] static QColor ink(Strain strain, Appearance panel);
    // The kind's name as the picture shows it: "CPU", "MEM", "NET"…
    [[nodiscard]] static QString shortName(MenuItemKind kind);
    // The panel's appearance: its shade where the desktop's settings tell it,
    // else the system palette's appearance.
    [[nodiscard]] static Appearance panelAppearance(PanelShade shade, Appearance palette);
};

} // namespace vexel
