// Vexel speaks the user's language where a translation is installed: one
// made by lrelease from a translation source like translations/vexel_en.ts.

#include "support/RunTool.h"
#include "support/TempFolder.h"
#include "texts/Translations.h"
#include "texts/Vexel.h"

#include <QTranslator>
#include <gtest/gtest.h>

#include <fstream>

using namespace vexel;

TEST(Translations, TheUsersLanguageIsLoadedWhereInstalledAndEnglishElsewhere)
{
    vexel::testing::TempFolder folder("vexel-translations");
    std::ofstream(folder.path() / "vexel_de.ts") << R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>vexel::Vexel</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>%1 kept the processor busy for %2 min</source>
        <translation>%2 Min. lang hielt %1 den Prozessor beschäftigt</translation>
    </message>
    <message numerus="yes">
        <source>%n process(es)</source>
        <translation><numerusform>%n Prozess</numerusform><numerusform>%n Prozesse</numerusform></translation>
    </message>
</context>
</TS>
)";
    const auto made = vexel::testing::runTool({"/usr/lib/qt6/bin/lrelease", "-silent",
        (folder.path() / "vexel_de.ts").string(), "-qm", (folder.path() / "vexel_de.qm").string()});
    ASSERT_EQ(made.status, 0) << made.err;
    const QString where = QString::fromStdString(folder.path().string());

    EXPECT_FALSE(Translations::install(where, QLocale(QStringLiteral("fr_FR"))));
    EXPECT_EQ(Vexel::tr("Overview"), QStringLiteral("Overview"));
    ASSERT_TRUE(Translations::install(where, QLocale(QStringLiteral("de_AT"))));
    EXPECT_EQ(Vexel::tr("Overview"), QStringLiteral("Übersicht"));
    EXPECT_EQ(Vexel::tr("%n process(es)", nullptr, 3), QStringLiteral("3 Prozesse"));
    EXPECT_EQ(Vexel::tr("CPU"), QStringLiteral("CPU")); // untranslated: as written
    // The core's words and sentences, with their values in the translator's order.
    EXPECT_EQ(Vexel::say(Sentence{"%1 kept the processor busy for %2 min", {{"make %2"}, {"25"}}}),
        QStringLiteral("25 Min. lang hielt make %2 den Prozessor beschäftigt"));
    // Under the German, the English plural forms built into the app.
    EXPECT_EQ(Vexel::tr("%n process(es) ended and wait(s) for its parent to collect it (zombie). They use no CPU or "
                        "memory.",
                  nullptr, 1),
        QStringLiteral(
            "1 process has ended and waits for its parent to collect it (zombie). They use no CPU or memory."));
    auto* german = QCoreApplication::instance()->findChildren<QTranslator*>().last();
    QCoreApplication::removeTranslator(german);
    delete german;
    EXPECT_EQ(Vexel::tr("Overview"), QStringLiteral("Overview"));
}
