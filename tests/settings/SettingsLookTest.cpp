// All pages at all scales: everything that is seen has room, also for texts much longer than the English
// ones.
#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "settings/ElidedLine.h"
#include "settings/NormalSettingPage.h"
#include "settings/RadioMark.h"
#include "settings/SettingsPageWidget.h"
#include "support/Eventually.h"
#include "ui/LookTokens.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFrame>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QResource>
#include <QTranslator>

namespace {

// Makes every text longer by about two fifths, or takes it from a file of words.
class LongWords final : public QTranslator {
public:
    LongWords()
    {
        const QString name = qEnvironmentVariable("QUORIN_LOOK_WORDS");
        QFile file(name);
        if (!name.isEmpty() && file.open(QIODevice::ReadOnly))
            m_words = QJsonDocument::fromJson(file.readAll()).object();
    }
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        const QString text = QString::fromUtf8(source);
        if (!m_words.isEmpty())
            return m_words.value(text).toObject().value(QStringLiteral("GER")).toString(text);
        return text + QLatin1Char(' ') + text.left(text.size() * 2 / 5);
    }

private:
    QJsonObject m_words;
};

struct Case {
    int dpi;
    bool isLong;
};

class SettingsLookTest : public testing::TestWithParam<Case> {
protected:
    void SetUp() override
    {
        ApplicationInfoManager::instance()->setScreenDpi(GetParam().dpi);
        const QString resources = QApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
        if (QFile::exists(resources))
            QResource::registerResource(resources);
        if (GetParam().isLong)
            QApplication::installTranslator(&m_words);
    }
    void TearDown() override
    {
        QApplication::removeTranslator(&m_words);
        ApplicationInfoManager::instance()->setScreenDpi(96);
    }

    static void expectRoom(const QWidget &window)
    {
        const auto check = [](const QWidget *part, const QString &text) {
            EXPECT_GE(part->width(), part->minimumSizeHint().width()) << qPrintable(text);
            const int needed = part->hasHeightForWidth() ? part->heightForWidth(part->width())
                                                         : part->minimumSizeHint().height();
            EXPECT_GE(part->height(), needed) << qPrintable(text);
            const QRect place(part->mapTo(part->parentWidget(), QPoint()), part->size());
            EXPECT_TRUE(part->parentWidget()->rect().contains(place)) << qPrintable(text);
        };
        for (const QLabel *label : window.findChildren<QLabel *>()) {
            if (label->isVisible())
                check(label, label->text());
        }
        for (const QPushButton *button : window.findChildren<QPushButton *>()) {
            if (button->isVisible() && !button->text().isEmpty())
                check(button, button->text());
        }
        for (const RadioMark *mark : window.findChildren<RadioMark *>()) {
            if (mark->isVisible())
                check(mark, mark->text());
        }
    }

    static void keep(QWidget &widget, const QString &name)
    {
        const QString folder = qEnvironmentVariable("QUORIN_LOOK_DIR");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        QPixmap picture(widget.size());
        picture.fill(QColor(12, 16, 19));
        widget.render(&picture, {}, {}, QWidget::DrawChildren);
        picture.save(QStringLiteral("%1/%2_%3%4.png")
                         .arg(folder, name)
                         .arg(GetParam().dpi)
                         .arg(GetParam().isLong ? QStringLiteral("_long") : QString()));
    }

    LongWords m_words;
    FakeLibrary m_library;
    FakeSettingsHost m_host;
    TestSettings m_store;
};

} // namespace

TEST_P(SettingsLookTest, ALongPathShowsBothItsEnds)
{
    const QString path = QStringLiteral("/media/a disc with a long name/Pictures/of all the years/2021");
    ElidedLine line;
    line.resize(Look::px(200), Look::px(34));
    line.setText(path);
    EXPECT_TRUE(line.shownText().startsWith(QLatin1String("/media")));
    EXPECT_TRUE(line.shownText().endsWith(QLatin1String("2021")));
    EXPECT_LE(line.fontMetrics().horizontalAdvance(line.shownText()), line.width());
    EXPECT_FALSE(line.grab().isNull());
    EXPECT_EQ(line.text(), path);
    line.setText(QStringLiteral("/a"));
    EXPECT_EQ(line.shownText(), QStringLiteral("/a"));
    // Whoever writes in it sees what is written.
    line.setText(path);
    line.show();
    QApplication::setActiveWindow(&line);
    line.setFocus();
    ASSERT_EVENTUALLY(line.hasFocus());
    EXPECT_EQ(line.shownText(), path);
}

TEST_P(SettingsLookTest, EveryPageHasRoomForItsTexts)
{
    m_host.paths = &m_library;
    m_host.known.isWindows = true;
    m_host.known.isWindows8OrLater = true;
    NormalSettingPage dialog(*m_store, m_host);
    dialog.setAttribute(Qt::WA_TranslucentBackground);
    dialog.findChild<QFrame *>(QStringLiteral("dialogPanel"))->setProperty("blended", true);
    dialog.setStyleSheet(dialog.styleSheet());
    dialog.prepare();
    dialog.model().setValue(SettingTables::ProxyChoice, int(SettingTables::ManualProxy));
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_EVENTUALLY(dialog.focusWidget() && dialog.focusWidget()->hasFocus());
    // The screen of the offscreen platform is small; what is looked at is the whole.
    dialog.resize(Look::px(880), Look::px(704));
    for (int page = 0; page < SettingsPageCount; ++page) {
        SCOPED_TRACE(page);
        dialog.slot_changeTabPage(page);
        QApplication::processEvents();
        expectRoom(dialog);
        keep(dialog, QStringLiteral("settings_%1").arg(page, 2, 10, QLatin1Char('0')));
    }
}

TEST_P(SettingsLookTest, ReasonsStandBesideTheirFields)
{
    NormalSettingPage dialog(*m_store, m_host);
    dialog.setAttribute(Qt::WA_TranslucentBackground);
    dialog.prepare();
    dialog.model().setValue(SettingTables::ProxyChoice, int(SettingTables::ManualProxy));
    dialog.model().setValue(SettingsKeys::PC_ProxyPort, QStringLiteral("99999"));
    dialog.model().setValue(SettingsKeys::EnableFileAssociation, true);
    dialog.model().associations()->setText(QStringLiteral("*.mkv;*.docx;"));
    dialog.show();
    dialog.resize(Look::px(880), Look::px(704));
    dialog.model().check();
    QApplication::processEvents();
    expectRoom(dialog);
    keep(dialog, QStringLiteral("wrong_association"));
    dialog.slot_changeTabPage(int(SettingsPageId::Network));
    QApplication::processEvents();
    expectRoom(dialog);
    keep(dialog, QStringLiteral("wrong_network"));
}

TEST_P(SettingsLookTest, ASmallWindowScrolls)
{
    NormalSettingPage dialog(*m_store, m_host);
    dialog.prepare();
    dialog.show();
    dialog.resize(Look::px(640), Look::px(420));
    for (int page = 0; page < SettingsPageCount; ++page) {
        dialog.slot_changeTabPage(page);
        QApplication::processEvents();
        const QRect buttons(dialog.okButton()->mapTo(&dialog, QPoint()), dialog.okButton()->size());
        EXPECT_TRUE(dialog.rect().contains(buttons)) << page;
    }
    dialog.slot_changeTabPage(int(SettingsPageId::Subtitle));
    QApplication::processEvents();
    keep(dialog, QStringLiteral("small"));
}

INSTANTIATE_TEST_SUITE_P(Scales, SettingsLookTest,
                         testing::Values(Case{96, false}, Case{192, false}, Case{96, true}, Case{144, true},
                                         Case{192, true}),
                         [](const auto &row) {
                             return std::to_string(row.param.dpi) + (row.param.isLong ? "Long" : "");
                         });
