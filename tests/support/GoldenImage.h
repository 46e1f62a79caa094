#pragma once

#include <QImage>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

namespace vexel::testing {

// Compares a picture with its golden file, pixel for pixel; with
// VEXEL_UPDATE_GOLDEN=1 in the environment it writes the file instead.
inline void expectGoldenImage(const QImage& image, const std::filesystem::path& file)
{
    const QImage picture = image.convertToFormat(QImage::Format_ARGB32);
    if (const char* update = std::getenv("VEXEL_UPDATE_GOLDEN"); update && std::string(update) == "1") {
        std::filesystem::create_directories(file.parent_path());
        ASSERT_TRUE(picture.save(QString::fromStdString(file.string())));
        return;
    }
    QImage golden(QString::fromStdString(file.string()));
    ASSERT_FALSE(golden.isNull()) << "missing golden picture " << file;
    golden = golden.convertToFormat(QImage::Format_ARGB32);
    golden.setDevicePixelRatio(picture.devicePixelRatio());
    EXPECT_EQ(picture, golden) << file << " differs";
}

} // namespace vexel::testing
