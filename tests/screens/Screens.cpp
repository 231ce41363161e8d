#include "Screens.h"

#include "FakeSettingsHost.h"
#include "FilmFrame.h"
#include "TestSettings.h"

#include "app/ModeSelectView.h"
#include "core/ApplicationInfoManager.h"
#include "dialogs/DialogLook.h"
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
#include "pc/NormalMainWindow.h"
#include "preview/NormalPreviewPopView.h"
#include "preview/NormalPreviewView.h"
#include "preview/PreviewFetcher.h"
#include "queue/NormalPlaylistView.h"
#include "queue/QueueListView.h"
#include "settings/NormalSettingPage.h"
#include "start/NormalStartView.h"
#include "transport/ThreeDMenu.h"
#include "tv/TvStartWidget.h"
#include "ui/AnimateMenu.h"
#include "ui/DisplayScale.h"
#include "ui/LookTokens.h"
#include "ui/StyleLoader.h"
#include "ui/StyleSheetScaler.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFrame>
#include <QHoverEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr int kDpi = 96;
constexpr int kMovingMs = 700;

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

class OneEpisode final : public INextEpisodeSource {
public:
    void requestNext(const QString &, Answer answer) override
    {
        answer({QStringLiteral("/shows/next.mkv"),
                QStringLiteral("Harbour S1E2: Low Tide at the Northern Pier"),
                FilmFrame::encoded({216, 324})});
    }
};

// A film that wanders over the landscape.
class LandscapeFilm final : public IPreviewSource {
public:
    bool open(const QString &) override { return true; }
    PreviewPicture grab(int positionMs) override
    {
        const QSize size(324, 182);
        const QImage whole = FilmFrame::make(size * 2);
        const double part = positionMs / 1000 % 900 / 900.0;
        const QPoint corner(qRound(part * size.width()), qRound((0.35 + 0.65 * part) * size.height()));
        return {whole.copy(QRect(corner, size)), positionMs};
    }
    void close() override {}
};

void applySheet(const char *name)
{
    QFile file(QLatin1String(StyleLoader::kCssPrefix) + QLatin1String(name));
    if (file.open(QIODevice::ReadOnly)) {
        qApp->setStyleSheet(StyleSheetScaler::scaled(QString::fromUtf8(file.readAll()),
                                                     DisplayScale::instance()->ratioWidth()));
    }
}

void settle(QWidget &widget)
{
    widget.show();
    QApplication::processEvents();
}

// What moves while it waits is drawn in the middle of its way.
void settleMoving(QWidget &widget)
{
    settle(widget);
    QEventLoop loop;
    QTimer::singleShot(kMovingMs, &loop, &QEventLoop::quit);
    loop.exec();
}

// Until what is shown has come to that; the rows and the slide of a panel come with events.
template<class Condition>
void settleUntil(Condition condition)
{
    while (!condition())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace

Screens::Screens(QString folder, int scale)
    : m_folder(std::move(folder))
    , m_scale(scale)
{
    QDir().mkpath(m_folder);
    ApplicationInfoManager::instance()->setScreenDpi(kDpi * scale);
}

void Screens::drawAll()
{
    applySheet("selectstyle.css");
    drawStart();
    applySheet("pcstyle.css");
    drawMessages();
    drawPictureDialogs();
    drawOtherDialogs();
    drawNotes();
    drawPreview();
    drawPlaylist();
    drawSettings();
    drawMenus();
    drawTv();
}

void Screens::drawStart()
{
    TestSettings settings;
    ModeSelectView question(*settings);
    question.adjustSize();
    settle(question);
    QHoverEvent enter(QEvent::HoverEnter, QPointF(8, 8), QPointF(-1, -1));
    QCoreApplication::sendEvent(question.findChild<QFrame *>(QStringLiteral("pcTile")), &enter);
    question.findChild<QCheckBox *>(QStringLiteral("rememberBox"))->setChecked(true);
    keepOverFilm(question, QStringLiteral("mode-selection"));

    applySheet("pcstyle.css");
    NormalStartView view;
    view.resize(Look::px(1024), Look::px(532));
    settle(view);
    keepAlone(view, QStringLiteral("start-view"));
    view.setDropping(true);
    keepAlone(view, QStringLiteral("start-view-dropping"));
}

void Screens::drawMessages()
{
    {
        NormalMessageBox box;
        box.setText(QStringLiteral("Invalid custom shader, please check and try again."));
        box.setCheckBoxHidden(true);
        box.addButton(QStringLiteral("OK"));
        settle(box);
        keepOverFilm(box, QStringLiteral("message-note"));
    }
    {
        NormalMessageBox box;
        box.setHeadText(QStringLiteral("Failed to play back the disc."));
        box.setText(
            QStringLiteral("A live Internet is required to play back the disc, please check your network "
                           "and try again."));
        box.setCheckBoxHidden(true);
        box.addButton(QStringLiteral("OK"));
        settle(box);
        keepOverFilm(box, QStringLiteral("message-head"));
    }
    {
        NormalMessageBox box;
        box.setText(
            QStringLiteral("Failure initializing playback device, please update your video card and sound "
                           "card drivers. Contact us if that does not fix the problem."));
        box.setCheckBoxHidden(true);
        box.addButton(QStringLiteral("Feedback"));
        box.addButton(QStringLiteral("OK"));
        settle(box);
        keepOverFilm(box, QStringLiteral("message-two-buttons"));
    }
    {
        NormalMessageBox box;
        box.setText(QStringLiteral(
            "<p style=\"line-height:120%\">The file is unavailable, please make sure the file exists and its "
            "containing drive is successfully mounted.<br /><br />/media/films/Northern Line (2021).mkv<p>"));
        box.setCheckBoxHidden(true);
        box.addButton(QStringLiteral("Delete from Library"));
        box.addButton(QStringLiteral("Retry"));
        settle(box);
        keepOverFilm(box, QStringLiteral("message-question"));
    }
    NormalMessageBox box;
    box.setText(QStringLiteral("Your device does not support hardware decoding for H.265 4K videos, and "
                               "we've automatically switched to "
                               "the software decoding mode, which might possibly cause unsmooth playback."));
    box.addButton(QStringLiteral("OK"));
    settle(box);
    box.findChild<QCheckBox *>()->setChecked(true);
    keepOverFilm(box, QStringLiteral("message-check-box"));
}

void Screens::drawPictureDialogs()
{
    TestSettings settings;
    SilentControl control;
    NormalColorAdjustDlg color(*settings, control);
    color.slider(0)->setValue(62);
    color.slider(2)->setValue(31);
    settle(color);
    keepOverFilm(color, QStringLiteral("colour-dialog"));
    NormalVideoControlDlg video(*settings, control);
    video.slider(1)->setValue(240);
    settle(video);
    keepOverFilm(video, QStringLiteral("video-dialog"));
}

void Screens::drawOtherDialogs()
{
    NormalLoadingDlg loading;
    settleMoving(loading);
    keepOverFilm(loading, QStringLiteral("loading"));
    NormalWaitingDlg waiting;
    waiting.setText(QStringLiteral("Submitting your message."));
    settleMoving(waiting);
    keepOverFilm(waiting, QStringLiteral("waiting"));
    NormalAboutDLg about(
        {ApplicationInfoManager::productName(), QStringLiteral("6.1.0.3"), QDate(2020, 7, 15)});
    settle(about);
    keepOverFilm(about, QStringLiteral("about"));
}

void Screens::drawNotes()
{
    QWidget window;
    window.resize(Look::px(1024), Look::px(576));
    window.show();
    NormalLastPositionLabel position([] { return qint64(0); }, [](double) {}, &window);
    position.setPosition(2530, FilmFrame::encoded({224, 126}));
    position.resize(position.sizeHint());
    position.slot_showLabel();
    position.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
    settle(position);
    keepOverFilm(position, QStringLiteral("note-last-position"));

    OneEpisode episodes;
    NormalTvshowAutoPlayLabel episode(&episodes, &window);
    episode.setSource(QStringLiteral("/shows/first.mkv"));
    episode.resize(episode.sizeHint());
    episode.slot_showLabel();
    episode.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
    settle(episode);
    keepOverFilm(episode, QStringLiteral("note-next-episode"));
}

void Screens::drawPreview()
{
    QWidget window;
    window.resize(Look::px(1024), Look::px(576));
    window.show();
    PreviewFetcher fetcher(std::make_shared<LandscapeFilm>());
    fetcher.setSource(QStringLiteral("/films/film.mkv"));
    NormalPreviewView strip(
        fetcher, [](double) {}, &window);
    QEventLoop filling;
    QObject::connect(&fetcher, &PreviewFetcher::fillEnded, &filling, &QEventLoop::quit);
    strip.setPlayingSecond(2883);
    strip.open(7581);
    filling.exec();
    strip.resize(strip.sizeHint());
    strip.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
    settle(strip);
    keepOverFilm(strip, QStringLiteral("preview-strip"));

    NormalPreviewPopView pop(&window);
    QObject::connect(&pop, &NormalPreviewPopView::sig_pictureWanted, &fetcher, &PreviewFetcher::request);
    QObject::connect(&fetcher, &PreviewFetcher::pictureReady, &pop, &NormalPreviewPopView::showPicture);
    QObject::connect(&fetcher, &PreviewFetcher::pictureReady, &filling, &QEventLoop::quit);
    pop.slot_showSeekView(QStringLiteral("01:02:37"), window.mapToGlobal({Look::px(512), Look::px(500)}));
    if (!pop.hasPicture())
        filling.exec();
    settle(pop);
    keepOverFilm(pop, QStringLiteral("preview-picture"));
}

void Screens::drawPlaylist()
{
    const QStringList sources{
        QStringLiteral("/films/Northern Line (2021).mkv"),
        QStringLiteral("/films/The Glass Harbour and the Long Way Home to the Sea (2019).mkv"),
        QStringLiteral("/shows/Harbour/Harbour S01E01 High Water.mkv"),
        QStringLiteral("/shows/Harbour/Harbour S01E02 Low Tide at the Northern Pier.mkv"),
        QStringLiteral("/shows/Harbour/Harbour S01E03 The Lamp.mkv"),
        QStringLiteral("/films/Lost/Paper Astronauts.mp4"),
        QStringLiteral("/films/A Year of Small Rain"),
        QStringLiteral("/films/Old Salt Road.avi"),
        QStringLiteral("/music/Seven Quiet Rivers/01 Winter Engine.flac"),
        QStringLiteral("/music/Seven Quiet Rivers/02 Slow Bridge.flac"),
        QStringLiteral("/music/Live at the Pier/Concert.m4a"),
        QStringLiteral("/films/Meridian.m2ts"),
    };
    TestSettings settings;
    NormalPlaylistView::Services services;
    services.queue.exists = [](const QString &path) { return !path.contains(QLatin1String("/Lost/")); };
    services.queue.titles = [](const QString &, int) { return PlayerDisc(); };
    NormalPlaylistView panel(*settings, services);
    panel.setWindowFlag(Qt::FramelessWindowHint);
    panel.setAttribute(Qt::WA_TranslucentBackground);
    panel.resize(Look::px(NormalPlaylistView::designWidth()), Look::px(580));
    panel.open();
    panel.addSources(sources);
    PlayQueue &queue = *panel.queue();
    settleUntil([&] {
        return queue.model()->sourceCount() == sources.size() && queue.model()->goneRows().size() == 1
               && panel.cardRect().left() == 0;
    });
    queue.playRow(queue.model()->index(2));
    panel.beginSource(sources.at(2));
    panel.slot_setPlayStatus(QPlayer::QPlayerStatus_Playing);
    panel.slot_setMetaInfo(QPlayer::QPlayerMetaType_Time, QStringLiteral("00:18:03 / 00:46:21"));
    panel.list()->setCurrentIndex(queue.model()->index(3));
    settle(panel);
    keepOverFilm(panel, QStringLiteral("playlist"));
}

void Screens::drawSettings()
{
    TestSettings settings;
    FakeSettingsHost host;
    host.known.picturesFolder = QStringLiteral("/users/anna/Pictures/Quorin Player 6");
    host.known.logFolder = QStringLiteral("/users/anna/Documents/Quorin Player 6/Log");
    NormalSettingPage dialog(*settings, host);
    dialog.prepare();
    dialog.show();
    // The screen of the offscreen platform is small.
    dialog.resize(Look::px(880), Look::px(704));
    const struct {
        SettingsPageId page;
        const char *name;
    } pages[] = {{SettingsPageId::General, "settings-general"},
                 {SettingsPageId::Audio, "settings-audio"},
                 {SettingsPageId::Subtitle, "settings-subtitles"}};
    for (const auto &each : pages) {
        dialog.slot_changeTabPage(int(each.page));
        QApplication::processEvents();
        keepOverFilm(dialog, QLatin1String(each.name));
    }
}

void Screens::drawMenus()
{
    QWidget window;
    window.resize(Look::px(800), Look::px(800));
    window.show();
    AnimateMenu menu(&window);
    menu.setRows(NormalMainWindow::menuRows(true));
    menu.setOpenGeometry(QRect(QPoint(0, 0), menu.sizeHint()));
    menu.slideIn();
    menu.animate(QStringLiteral("animate"))->setCurrentTime(AnimateMenu::OpenMs);
    QMouseEvent move(QEvent::MouseMove, menu.rowRect(3).center(), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(&menu, &move);
    settle(menu);
    keepOverFilm(menu, QStringLiteral("main-menu"));

    TestSettings settings;
    ThreeDMenu threeD(*settings);
    QMenu *popup = threeD.build();
    settle(*popup);
    for (QAction *action : popup->actions()) {
        if (action->menu() != nullptr)
            popup->setActiveAction(action);
    }
    QApplication::processEvents();
    keepOverFilm(*popup, QStringLiteral("menu-3d"));
    if (QMenu *formats = popup->activeAction() != nullptr ? popup->activeAction()->menu() : nullptr) {
        settle(*formats);
        keepOverFilm(*formats, QStringLiteral("menu-3d-formats"));
    }
    popup->close();
}

void Screens::drawTv()
{
    ApplicationInfoManager::instance()->setRunMode(ApplicationInfoManager::TvMode);
    const QSize screen = DisplayScale::designSize() * m_scale;
    DisplayScale::instance()->setScreenSize(screen.width(), screen.height());
    applySheet("tvstyle.css");
    TvStartWidget start;
    start.resize(screen);
    settle(start);
    keepAlone(start, QStringLiteral("tv-start"));
    ApplicationInfoManager::instance()->setRunMode(ApplicationInfoManager::PcMode);
}

void Screens::keepOverFilm(QWidget &widget, const QString &name)
{
    // The offscreen platform has no compositor; users mostly have one, and round corners with it.
    if (auto *panel = widget.findChild<QFrame *>(QLatin1String(DialogLook::Panel))) {
        widget.setAttribute(Qt::WA_TranslucentBackground);
        panel->setProperty("blended", true);
        widget.setStyleSheet(widget.styleSheet());
        QApplication::processEvents();
    }
    const int around = Look::px(32);
    const QSize size = widget.size() + QSize(2 * around, 2 * around);
    QImage image = FilmFrame::make(size.expandedTo(QSize(Look::px(640), Look::px(360))));
    QPainter painter(&image);
    const QPoint place = image.rect().center() - widget.rect().center();
    widget.render(&painter, place, {}, QWidget::DrawChildren);
    painter.end();
    keep(image, name);
}

void Screens::keepAlone(QWidget &widget, const QString &name)
{
    keep(widget.grab().toImage(), name);
}

void Screens::keep(const QImage &image, const QString &name)
{
    m_good &= image.save(QStringLiteral("%1/%2@%3x.png").arg(m_folder, name).arg(m_scale));
}
