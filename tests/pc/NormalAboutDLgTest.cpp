#include "dialogs/NormalAboutDLg.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QString allText(const QWidget &dialog)
{
    QStringList texts;
    for (const QLabel *label : dialog.findChildren<QLabel *>())
        texts << label->text();
    return texts.join(QLatin1Char('\n'));
}

} // namespace

TEST(NormalAboutDLgTest, TellsNameVersionBuildDayLicenceAndLibraries)
{
    QLocale::setDefault(QLocale::c());
    NormalAboutDLg dialog({"Quorin Player 6", "6.1.0.3", QDate(2024, 5, 31)});
    const QString text = allText(dialog);
    for (const char *part : {"Quorin Player 6", "6.1.0.3", "31 May 2024", "General Public License", "Qt",
                             "libmpv", "FFmpeg", "libdvdread", "libbluray", "SQLite"})
        EXPECT_TRUE(text.contains(QLatin1String(part))) << part;
}

TEST(NormalAboutDLgTest, UnknownVersionAndDayAreLeftOut)
{
    NormalAboutDLg dialog({"Quorin Player 6", "", {}});
    EXPECT_FALSE(allText(dialog).contains("Version"));
    EXPECT_FALSE(allText(dialog).contains("built on"));
}

TEST(NormalAboutDLgTest, EnterAndEscapeCloseIt)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        NormalAboutDLg dialog;
        dialog.show();
        QTest::keyClick(&dialog, key);
        EXPECT_FALSE(dialog.isVisible());
    }
}
