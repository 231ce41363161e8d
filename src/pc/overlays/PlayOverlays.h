// Everything that hovers over the picture in PC mode: transport bar, title, information, tips, speed,
// pictures of the source, the play queue with its tab, and the notes of the last position and of the next
// episode.
//
// Makes them, places them through an OverlayHost and connects them with the player; the main window owns them
// as their parent. Bar and title come with the mouse or the keyboard and go when both rest. GUI thread.
#pragma once

#include <QObject>
#include <QTimer>

class INextEpisodeSource;
class NormalLastPositionLabel;
class NormalMetaView;
class NormalOperateBar;
class NormalPlaySpeedBar;
class NormalPlaylistSwitch;
class NormalPlaylistView;
class NormalTipLabel;
class NormalTopBar;
class NormalTvshowAutoPlayLabel;
class OverlayHost;
class OverlayWidget;
class QPlayer;
class QWidget;
class SmartPreview;

class PlayOverlays final : public QObject {
    Q_OBJECT

public:
    // episodes may be null and outlives the overlays.
    PlayOverlays(QWidget *window, QWidget *area, INextEpisodeSource *episodes);
    ~PlayOverlays() override;

    void connectPlayer(QPlayer *player);

    [[nodiscard]] NormalOperateBar *bar() const { return m_bar; }
    [[nodiscard]] NormalTopBar *topBar() const { return m_topBar; }
    [[nodiscard]] NormalMetaView *metaView() const { return m_meta; }
    [[nodiscard]] NormalTipLabel *tipLabel() const { return m_tip; }
    [[nodiscard]] NormalPlaySpeedBar *speedBar() const { return m_speed; }
    [[nodiscard]] NormalLastPositionLabel *lastPosition() const { return m_lastPosition; }
    [[nodiscard]] NormalTvshowAutoPlayLabel *nextEpisode() const { return m_nextEpisode; }

    [[nodiscard]] SmartPreview *preview() const { return m_preview; }
    [[nodiscard]] NormalPlaylistView *playlist() const { return m_playlist; }

    // A source is on its way.
    void beginSource(const QString &displayName, const QString &path);
    // It is open; a disc has no pictures to show.
    void showOpened(const QString &path, bool isDisc);
    // Nothing plays any more: all of them go at once.
    void endSource();
    // Bars that never rest, as over music.
    void setStaying(bool staying);
    void setFullScreen(bool fullScreen);
    void setMaximized(bool maximized);

    // The bars come. They rest again by themselves where no mouse tells when.
    void wake();
    // The bars go, unless the pointer is on one of them or a menu or a button is held. True when they are
    // gone.
    bool rest();
    // The bars rest in a while, unless something wakes them before.
    void restSoon() { m_restTimer.start(); }
    [[nodiscard]] bool isAwake() const;

    void retranslate();

signals:
    // The bars have gone by themselves.
    void rested();
    // A picture of the source was chosen.
    void seekWanted(int seconds);

private:
    void place();
    void connectPlaylist();
    [[nodiscard]] bool isHeld() const;

    OverlayHost *m_host;
    NormalOperateBar *m_bar;
    NormalTopBar *m_topBar;
    NormalMetaView *m_meta;
    NormalTipLabel *m_tip;
    NormalPlaySpeedBar *m_speed;
    NormalLastPositionLabel *m_lastPosition;
    NormalTvshowAutoPlayLabel *m_nextEpisode;
    SmartPreview *m_preview;
    NormalPlaylistView *m_playlist;
    NormalPlaylistSwitch *m_playlistSwitch;
    QTimer m_wakeTimer;
    QTimer m_restTimer;
    bool m_hasSource{false};
    bool m_staying{false};
};
