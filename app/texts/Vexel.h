#pragma once

#include "text/Sentence.h"

#include <QCoreApplication>

#include <string>

namespace vexel {

// The one context of the window's, the panel's and the settings' sentences
// for translators: Vexel::tr("Overview"), Vexel::tr("%n process(es)", nullptr, count).
// lupdate collects every such call, and the core's VEXEL_WORDS texts, into
// translations/vexel_en.ts.
class Vexel {
    Q_DECLARE_TR_FUNCTIONS(vexel::Vexel)

public:
    // A text the core marked with VEXEL_WORDS ("Cool", "Memory pressure"), in the
    // user's language; any other text comes back as it is.
    [[nodiscard]] static QString words(const std::string& english);

    // A sentence of the core in the user's language, its values in place.
    [[nodiscard]] static QString say(const Sentence& sentence);
    // Sentences said one after another, as one paragraph.
    [[nodiscard]] static QString say(const std::vector<Sentence>& paragraph);
};

} // namespace vexel
