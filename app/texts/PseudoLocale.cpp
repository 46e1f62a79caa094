#include "texts/PseudoLocale.h"

#include <cmath>
#include <cstring>

namespace vexel {

QString PseudoLocale::translate(const char* context, const char* sourceText, const char*, int) const
{
    // Vexel's own sentences only: Qt's (the text fields' menus) stay as they are.
    if (context == nullptr || sourceText == nullptr || std::strcmp(context, "vexel::Vexel") != 0)
        return {};
    return pseudo(QString::fromUtf8(sourceText));
}

QString PseudoLocale::pseudo(const QString& text)
{
    const auto longer = static_cast<qsizetype>(std::ceil(static_cast<double>(text.size()) * 0.3));
    return QStringLiteral("⟦") + text + QString(longer, QChar(0x00B7)) + QStringLiteral("⟧");
}

} // namespace vexel
