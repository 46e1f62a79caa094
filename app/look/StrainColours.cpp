#include "look/StrainColours.h"

namespace vexel::Look {

QColor strainColour(Appearance appearance, Strain strain)
{
    const bool dark = appearance == Appearance::dark;
    switch (strain) {
    case Strain::calm: return palette(appearance).color(QPalette::Highlight);
    case Strain::elevated: return dark ? QColor(0xf2, 0xa9, 0x3b) : QColor(0xd9, 0x8a, 0x0b);
    case Strain::strained: return dark ? QColor(0xf2, 0x5c, 0x54) : QColor(0xd9, 0x32, 0x2b);
    }
    return palette(appearance).color(QPalette::Highlight);
}

QColor track(Appearance appearance)
{
    return appearance == Appearance::dark ? QColor(0x3a, 0x3b, 0x40) : QColor(0xe2, 0xe2, 0xe6);
}

} // namespace vexel::Look
