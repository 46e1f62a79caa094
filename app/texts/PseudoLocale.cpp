#include "texts/PseudoLocale.h"

#include <cmath>
#include <cstring>

namespace vexel {

PseudoLocale::PseudoLocale()
{
    (void)m_english.load(QStringLiteral(":/translations/vexel_en.qm"));
}

QString PseudoLocale::translate(const char* context, const char* sourceText, const char* disambiguation, int n) const
{
    // Vexel's own sentences only: Qt's (the text fields' menus) stay as they are.
    if (context == nullptr || sourceText == nullptr || std::strcmp(context, "vexel::Vexel") != 0)
        return {};
    const QString english = m_english.translate(context, sourceText, disambiguation, n);
    return pseudo(english.isEmpty() ? QString::fromUtf8(sourceText) : english);
}

QString PseudoLocale::pseudo(const QString& text)
{
    const auto longer = static_cast<qsizetype>(std::ceil(static_cast<double>(text.size()) * 0.3));
    // Padding as short words, so a long sentence still wraps where a real one would.
    QString padding;
    for (qsizetype i = 0; i < longer; ++i)
        padding += i % 5 == 4 ? u' ' : u'~';
    return QStringLiteral("⟦") + text + padding + QStringLiteral("⟧");
}

} // namespace vexel
