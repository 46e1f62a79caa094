#pragma once

#include <QCoreApplication>

namespace vexel {

// The one context of the window's, the panel's and the settings' sentences
// for translators: Vexel::tr("Overview"), Vexel::tr("%n process(es)", nullptr, count).
// lupdate collects every such call into translations/vexel_en.ts.
class Vexel {
    Q_DECLARE_TR_FUNCTIONS(vexel::Vexel)
};

} // namespace vexel
