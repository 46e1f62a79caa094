#include "texts/Vexel.h"

#include <QStringList>

namespace vexel {

QString Vexel::words(const std::string& english)
{
    return QCoreApplication::translate("vexel::Vexel", english.c_str());
}

QString Vexel::say(const Sentence& sentence)
{
    // The translated pattern and values filled in once by the core's own rule,
    // so a value that itself holds "%2" (an app's name) stays as it is.
    Sentence translated{
        QCoreApplication::translate("vexel::Vexel", sentence.pattern.c_str(), nullptr, sentence.count.value_or(-1))
            .toStdString()};
    for (const auto& value : sentence.values)
        translated.values.push_back({value.words ? words(value.text).toStdString() : value.text});
    return QString::fromStdString(translated.english());
}

QString Vexel::say(const std::vector<Sentence>& paragraph)
{
    QStringList said;
    for (const auto& sentence : paragraph)
        said << say(sentence);
    return said.join(u' ');
}

} // namespace vexel
