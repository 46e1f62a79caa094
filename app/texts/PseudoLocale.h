#pragma once

#include <QTranslator>

namespace vexel {

// A made-up language for looking at translation: each of Vexel's sentences
// wrapped in ⟦ ⟧ and a third longer, as German or Finnish often is. A
// sentence that shows unwrapped in its pictures doesn't reach translators;
// one that shows clipped would be clipped in a longer language too.
class PseudoLocale final : public QTranslator {
public:
    PseudoLocale();

    [[nodiscard]] QString translate(
        const char* context, const char* sourceText, const char* disambiguation, int n) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }

    // A source text in the pseudo-language.
    [[nodiscard]] static QString pseudo(const QString& text);

private:
    QTranslator m_english; // its plural forms: "%n day(s)" is wrapped as "%n days"
};

} // namespace vexel
