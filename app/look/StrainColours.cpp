#include "look/StrainColours.h"

#include <array>

namespace vexel::Look {

QColor strainColour(Appearance appearance, Strain strain)
{
    return strainColour(palette(appearance), strain);
}

QColor strainColour(const QPalette& palette, Strain strain)
{
    const bool dark = appearanceOf(palette) == Appearance::dark;
    switch (strain) {
    case Strain::calm: break;
    case Strain::elevated: return dark ? QColor(0xf2, 0xa9, 0x3b) : QColor(0xd9, 0x8a, 0x0b);
    case Strain::strained: return dark ? QColor(0xf2, 0x5c, 0x54) : QColor(0xd9, 0x32, 0x2b);
    }
    return palette.color(QPalette::Highlight);
}

QColor track(Appearance appearance)
{
    return appearance == Appearance::dark ? QColor(0x3a, 0x3b, 0x40) : QColor(0xe2, 0xe2, 0xe6);
}

QColor track(const QPalette& palette)
{
    return track(appearanceOf(palette));
}

QColor seriesColour(Appearance appearance, size_t index)
{
    return seriesColour(palette(appearance), index);
}

QColor seriesColour(const QPalette& palette, size_t index)
{
    const bool dark = appearanceOf(palette) == Appearance::dark;
    const std::array<QColor, 4> colours{strainColour(palette, Strain::calm),
        dark ? QColor(0xc0, 0x84, 0xfc) : QColor(0x8e, 0x44, 0xd6),
        dark ? QColor(0x4c, 0xd9, 0x9c) : QColor(0x1f, 0x9d, 0x6a),
        dark ? QColor(0xf4, 0x9a, 0x5c) : QColor(0xd0, 0x6a, 0x1c)};
    return colours.at(index % colours.size());
}

} // namespace vexel::Look
