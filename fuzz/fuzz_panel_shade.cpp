// Desktop settings files (plasmarc, kdeglobals, the xfconf panel channel):
// any text gives a shade, and a value found is part of the text.

#include "FuzzInput.h"
#include "platform/linux/PanelShade.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    for (const char* desktop : {"KDE", "XFCE"})
        (void)vexel::PanelShades::of({desktop, std::string(text), std::string(text), std::string(text)});
    if (const auto value = vexel::PanelShades::iniValue(text, "Colors:Window", "BackgroundNormal")) {
        require(value->size() <= size);
        (void)vexel::PanelShades::shadeOfColour(*value);
    }
    return 0;
}
