// Widget tests render offscreen with the app's own font and light palette, so that pictures do
// not depend on the machine. CTest's discovery runs this binary without the
// test environment, so the platform is chosen here.

#include "Appearance.h"
#include "texts/Translations.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cstdlib>

int main(int argc, char** argv)
{
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    if (!vexel::Look::installFont()) {
        std::fprintf(stderr, "the Inter font is missing: install fonts-inter\n");
        return 1;
    }
    QApplication::setPalette(vexel::Look::palette(vexel::Appearance::light));
    if (!vexel::Translations::installEnglish()) {
        std::fprintf(stderr, "the English built into the app is missing\n");
        return 1;
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
