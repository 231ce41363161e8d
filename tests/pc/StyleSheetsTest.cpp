// The program's own style sheets at the usual scales: what Qt cannot read it tells with a warning, which
// fails a test.
#include "ui/StyleLoader.h"
#include "ui/StyleSheetScaler.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QResource>

#include <gtest/gtest.h>

namespace {

class StyleSheetsTest : public testing::TestWithParam<const char *> {
protected:
    void SetUp() override { ASSERT_TRUE(QResource::registerResource(resourceFile())); }
    void TearDown() override
    {
        qApp->setStyleSheet({});
        QResource::unregisterResource(resourceFile());
    }
    static QString resourceFile()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
    }
};

TEST_P(StyleSheetsTest, IsReadAtEveryScale)
{
    QFile file(QLatin1String(StyleLoader::kCssPrefix) + QLatin1String(GetParam()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(file.readAll());
    for (const float ratio : {1.0F, 1.25F, 1.5F, 2.0F}) {
        qApp->setStyleSheet(StyleSheetScaler::scaled(sheet, ratio));
        QCheckBox box;
        box.ensurePolished();
        EXPECT_EQ(box.palette().color(QPalette::WindowText).isValid(), true);
    }
}

// The mark of a check box grows with its box.
TEST_P(StyleSheetsTest, ACheckBoxsMarkFillsItsBoxAtDoubleScale)
{
    QFile file(QLatin1String(StyleLoader::kCssPrefix) + QLatin1String(GetParam()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString sheet = QString::fromUtf8(file.readAll());
    if (!sheet.contains(QLatin1String("QCheckBox::indicator")))
        return;
    qApp->setStyleSheet(StyleSheetScaler::scaled(sheet, 2.0F));
    QCheckBox box;
    box.setChecked(true);
    box.resize(64, 64);
    const QImage image = box.grab().toImage();
    int accent = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            accent += image.pixelColor(x, y) == QColor(0x17, 0x9c, 0xf1) ? 1 : 0;
    }
    // 32 by 32 pixels less the round corners and the tick.
    EXPECT_GT(accent, 700);
}

INSTANTIATE_TEST_SUITE_P(Sheets, StyleSheetsTest,
                         testing::Values("pcstyle.css", "selectstyle.css", "tvstyle.css"));

} // namespace
