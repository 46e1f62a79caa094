#include "Appearance.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

#include <cmath>

namespace vexel {

Appearance appearanceOf(const QPalette& palette)
{
    // Text is the one role Vexel never sets on a widget of its own, so a
    // widget's palette tells its appearance even where Vexel coloured it.
    return palette.color(QPalette::Text).lightness() > 128 ? Appearance::dark : Appearance::light;
}

} // namespace vexel

namespace vexel::Look {

namespace {

QString g_family;

// Debian's fonts-inter puts the variable and static faces here.
const QStringList fontFiles{
    QStringLiteral("/usr/share/fonts/opentype/inter/Inter-Regular.otf"),
    QStringLiteral("/usr/share/fonts/truetype/inter/Inter-Regular.ttf"),
    QStringLiteral("/usr/share/fonts/opentype/inter/InterVariable.ttf"),
};

const QStringList boldFiles{
    QStringLiteral("/usr/share/fonts/opentype/inter/Inter-SemiBold.otf"),
    QStringLiteral("/usr/share/fonts/opentype/inter/Inter-Bold.otf"),
};

} // namespace

bool installFont()
{
    for (const auto& file : fontFiles) {
        const int id = QFontDatabase::addApplicationFont(file);
        if (id < 0)
            continue;
        const auto families = QFontDatabase::applicationFontFamilies(id);
        if (families.isEmpty())
            continue;
        g_family = families.front();
        for (const auto& bold : boldFiles)
            QFontDatabase::addApplicationFont(bold);
        QApplication::setFont(font(10));
        return true;
    }
    return false;
}

QFont font(double pointSize, QFont::Weight weight)
{
    if (g_family.isEmpty()) { // the system's font, hinted as the system hints it
        QFont result = QApplication::font();
        result.setPointSizeF(pointSize);
        result.setWeight(weight);
        return result;
    }
    QFont result(g_family);
    result.setPointSizeF(pointSize);
    result.setWeight(weight);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QFont fitted(QFont font, const QString& text, double width)
{
    const bool pixels = font.pixelSize() > 0;
    const double largest = pixels ? font.pixelSize() : font.pointSizeF();
    for (double size = largest; size > 5; size -= 0.5) {
        if (pixels)
            font.setPixelSize(static_cast<int>(std::lround(size)));
        else
            font.setPointSizeF(size);
        if (QFontMetricsF(font).horizontalAdvance(text) <= width)
            break;
    }
    return font;
}

QPalette palette(Appearance appearance)
{
    const bool dark = appearance == Appearance::dark;
    const QColor window = dark ? QColor(0x1e, 0x1f, 0x22) : QColor(0xf7, 0xf7, 0xf8);
    const QColor text = dark ? QColor(0xec, 0xec, 0xee) : QColor(0x1d, 0x1d, 0x1f);
    const QColor base = dark ? QColor(0x26, 0x27, 0x2b) : QColor(0xff, 0xff, 0xff);
    const QColor highlight = dark ? QColor(0x3b, 0x6e, 0xd8) : QColor(0x2f, 0x6f, 0xeb);
    QPalette p;
    p.setColor(QPalette::Window, window);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, base);
    p.setColor(QPalette::AlternateBase, window);
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Button, base);
    p.setColor(QPalette::ButtonText, text);
    p.setColor(QPalette::Highlight, highlight);
    p.setColor(QPalette::HighlightedText, QColor(0xff, 0xff, 0xff));
    p.setColor(QPalette::PlaceholderText, secondaryText(appearance));
    // Controls that can't be used now fade towards the background.
    QColor faded = secondaryText(appearance);
    faded.setAlphaF(0.55F);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, faded);
    return p;
}

QColor sidebar(Appearance appearance)
{
    return appearance == Appearance::dark ? QColor(0x17, 0x18, 0x1a) : QColor(0xec, 0xec, 0xef);
}

QColor secondaryText(Appearance appearance)
{
    return appearance == Appearance::dark ? QColor(0x9a, 0x9b, 0xa1) : QColor(0x6e, 0x6e, 0x73);
}

QColor destructive(Appearance appearance)
{
    return appearance == Appearance::dark ? QColor(0xff, 0x6b, 0x63) : QColor(0xd7, 0x26, 0x1e);
}

} // namespace vexel::Look
