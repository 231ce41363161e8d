// Draws every dialog and note at the scales of the usual displays: nothing may be cut off or pressed
// together. With QUORIN_LOOK_DIR set the pictures are kept there for the eye.
#include "TestSettings.h"

#include "core/ApplicationInfoManager.h"
#include "dialogs/DialogSlider.h"
#include "dialogs/IPictureControl.h"
#include "dialogs/NormalAboutDLg.h"
#include "dialogs/NormalColorAdjustDlg.h"
#include "dialogs/NormalLoadingDlg.h"
#include "dialogs/NormalMessageBox.h"
#include "dialogs/NormalVideoControlDlg.h"
#include "dialogs/NormalWaitingDlg.h"
#include "overlays/NormalLastPositionLabel.h"
#include "overlays/NormalTvshowAutoPlayLabel.h"
#include "ui/AnimateMenu.h"
#include "ui/LookTokens.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QResource>

#include <gtest/gtest.h>

namespace {

class SilentControl final : public IPictureControl {
public:
    void setBrightness(float) override {}
    void setSaturation(float) override {}
    void setContrast(float) override {}
    void setZoomAmount(float) override {}
    void setVerticalShift(float) override {}
    void setPixelRatio(float) override {}
    void setCustomView() override {}
};

QByteArray artwork(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, size.width(), size.height());
    sky.setColorAt(0, QColor(36, 30, 110));
    sky.setColorAt(0.6, QColor(60, 70, 200));
    sky.setColorAt(1, QColor(20, 60, 70));
    painter.fillRect(image.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(240, 180, 90, 190));
    painter.drawEllipse(QPointF(size.width() * 0.7, size.height() * 0.35), size.width() * 0.12,
                        size.width() * 0.12);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class OneEpisode final : public INextEpisodeSource {
public:
    void requestNext(const QString &, Answer answer) override
    {
        answer({QStringLiteral("/shows/next.mkv"),
                QStringLiteral("Harbour S1E2: Low Tide at the Northern Pier"), artwork({216, 324})});
    }
};

class DialogRenderTest : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        ApplicationInfoManager::instance()->setScreenDpi(GetParam());
        const QString resources = QApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
        if (QFile::exists(resources))
            QResource::registerResource(resources);
    }
    void TearDown() override { ApplicationInfoManager::instance()->setScreenDpi(96); }

    // Every label and button that is seen has the room it asks for and stands inside its window.
    static void expectRoom(const QWidget &window)
    {
        const auto check = [&window](const QWidget *part, const QString &text) {
            const QRect place(part->mapTo(&window, QPoint(0, 0)), part->size());
            EXPECT_TRUE(window.rect().contains(place)) << qPrintable(text);
            EXPECT_GE(part->width(), part->minimumSizeHint().width()) << qPrintable(text);
            EXPECT_GE(part->height(), part->minimumSizeHint().height()) << qPrintable(text);
        };
        for (const QLabel *label : window.findChildren<QLabel *>()) {
            if (label->isVisible())
                check(label, label->text());
        }
        for (const QPushButton *button : window.findChildren<QPushButton *>()) {
            if (button->isVisible() && !button->text().isEmpty())
                check(button, button->text());
        }
    }

    // A picture of the widget as it stands over a film.
    static void keep(QWidget &widget, const char *name)
    {
        const QString folder = qEnvironmentVariable("QUORIN_LOOK_DIR");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        const int around = Look::px(32);
        QImage image(widget.size() + QSize(2 * around, 2 * around), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.drawImage(image.rect(), QImage::fromData(artwork({640, 360})));
        widget.render(&painter, QPoint(around, around), {}, QWidget::DrawChildren);
        painter.end();
        image.save(QStringLiteral("%1/%2_%3.png").arg(folder, QLatin1String(name)).arg(GetParam()));
    }

    void see(QWidget &widget, const char *name)
    {
        widget.show();
        QApplication::processEvents();
        expectRoom(widget);
        keep(widget, name);
    }

    // Lets a dialog draw round corners here, as a blending desktop would.
    template<class Dialog>
    static void blend(Dialog &dialog)
    {
        dialog.setAttribute(Qt::WA_TranslucentBackground);
        if (auto *panel = dialog.template findChild<QFrame *>(QStringLiteral("dialogPanel"))) {
            panel->setProperty("blended", true);
            dialog.setStyleSheet(dialog.styleSheet());
        }
    }
};

} // namespace

TEST_P(DialogRenderTest, Question)
{
    NormalMessageBox box;
    blend(box);
    box.setText(QStringLiteral(
        "<p style=\"line-height:120%\">The file is unavailable, please make sure the file exists "
        "and its containing drive is successfully mounted.<br /><br />D:\\Film\\Northern Line "
        "(2021).mkv<p>"));
    box.addButton(QStringLiteral("Delete from Library"));
    box.addButton(QStringLiteral("Retry"));
    see(box, "question");
}

TEST_P(DialogRenderTest, NoteWithHead)
{
    NormalMessageBox box;
    blend(box);
    box.setHeadText(QStringLiteral("Failed to play back the disc."));
    box.setText(QStringLiteral(
        "A live Internet is required to play back the disc, please check your network and try again."));
    box.setCheckBoxHidden(true);
    box.addButton(QStringLiteral("OK"));
    see(box, "note");
}

TEST_P(DialogRenderTest, LongPath)
{
    NormalMessageBox box;
    blend(box);
    box.setText(QStringLiteral("/films/") + QString(4000, QLatin1Char('x')) + QStringLiteral(".mkv"));
    box.setCheckBoxHidden(true);
    box.addButton(QStringLiteral("Retry"));
    see(box, "longpath");
}

TEST_P(DialogRenderTest, ColorAdjust)
{
    TestSettings settings;
    SilentControl control;
    NormalColorAdjustDlg dialog(*settings, control);
    blend(dialog);
    dialog.slider(0)->setValue(62);
    dialog.slider(2)->setValue(31);
    see(dialog, "color");
}

TEST_P(DialogRenderTest, VideoControl)
{
    TestSettings settings;
    SilentControl control;
    NormalVideoControlDlg dialog(*settings, control);
    blend(dialog);
    dialog.slider(1)->setValue(240);
    see(dialog, "video");
}

TEST_P(DialogRenderTest, Loading)
{
    NormalLoadingDlg dialog;
    blend(dialog);
    see(dialog, "loading");
}

TEST_P(DialogRenderTest, Waiting)
{
    NormalWaitingDlg dialog;
    blend(dialog);
    dialog.setText(QStringLiteral("Submitting your message."));
    see(dialog, "waiting");
}

TEST_P(DialogRenderTest, About)
{
    NormalAboutDLg dialog({QStringLiteral("Quorin Player 6"), QStringLiteral("6.1.0.3"), QDate(2024, 5, 31)});
    blend(dialog);
    see(dialog, "about");
}

TEST_P(DialogRenderTest, LastPosition)
{
    QWidget window;
    window.resize(800, 600);
    window.show();
    NormalLastPositionLabel label([] { return qint64(0); }, [](double) {}, &window);
    label.setPosition(2530, artwork({224, 126}));
    label.slot_showLabel();
    label.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
    see(label, "lastposition");
}

TEST_P(DialogRenderTest, NextEpisode)
{
    QWidget window;
    window.resize(1000, 600);
    window.show();
    OneEpisode episodes;
    NormalTvshowAutoPlayLabel label(&episodes, &window);
    label.setSource(QStringLiteral("/shows/first.mkv"));
    label.slot_showLabel();
    label.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
    see(label, "nextepisode");
}

TEST_P(DialogRenderTest, Menu)
{
    QWidget window;
    window.resize(800, 1200);
    AnimateMenu menu(&window);
    window.show();
    menu.setOpenGeometry(QRect(QPoint(0, 0), menu.sizeHint()));
    menu.slideIn();
    menu.animate(QStringLiteral("animate"))->setCurrentTime(AnimateMenu::OpenMs);
    QMouseEvent move(QEvent::MouseMove, menu.rowRect(3).center(), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&menu, &move);
    for (int row = 0; row < menu.rows().size(); ++row)
        EXPECT_LE(QFontMetrics(menu.font()).horizontalAdvance(menu.rows().at(row).text),
                  menu.rowRect(row).width())
            << row;
    EXPECT_LE(menu.rowRect(menu.rows().size() - 1).bottom(), menu.height());
    see(menu, "menu");
}

INSTANTIATE_TEST_SUITE_P(Scales, DialogRenderTest, testing::Values(96, 144, 192));
