#include "texts/Vexel.h"

#include <QStringList>

namespace vexel {

QString Vexel::words(const std::string& english)
{
    return QCoreApplication::translate("vexel::Vexel", english.c_str());
}

QString Vexel::say(const Sentence& sentence)
{
    // One pass over the translated pattern, so a value that itself holds "%2"
    // (an app's name) stays as it is.
    const QString pattern
        = QCoreApplication::translate("vexel::Vexel", sentence.pattern.c_str(), nullptr, sentence.count.value_or(-1));
    QString said;
    said.reserve(pattern.size());
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar next = i + 1 < pattern.size() ? pattern[i + 1] : QChar();
        const auto index = static_cast<size_t>(next.unicode() - u'1');
        if (pattern[i] == u'%' && next >= u'1' && next <= u'9' && index < sentence.values.size()) {
            const auto& value = sentence.values[index];
            said += value.words ? words(value.text) : QString::fromStdString(value.text);
            ++i;
        } else {
            said += pattern[i];
        }
    }
    return said;
}

QString Vexel::say(const std::vector<Sentence>& paragraph)
{
    QStringList said;
    for (const auto& sentence : paragraph)
        said << say(sentence);
    return said.join(u' ');
}

} // namespace vexel
