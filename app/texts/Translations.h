#pragma once

#include <QLocale>
#include <QString>

namespace vexel {

// Vexel's translations: vexel_<language>.qm files, made by lrelease from
// translations/vexel_<language>.ts.
namespace Translations {

// Where an install keeps them: share/vexel/translations beside the
// program's bin folder.
[[nodiscard]] QString folder();

// Installs the English built into the app: the plural forms of its
// sentences ("%n process has", "%n processes have"). First, under any other.
bool installEnglish();

// Installs the translation of the best of `locale`'s languages found in
// `folder` for the whole app; false when there is none (Vexel then speaks
// the English it is written in). Before any window is made: it reads a file.
bool install(const QString& folder, const QLocale& locale);

} // namespace Translations

} // namespace vexel
