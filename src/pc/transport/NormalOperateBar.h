// The strip of controls over the bottom of the picture: transport, chapters, frames, volume, seek slider, 3D,
// queue and preview.
//
// Owns its buttons, sliders, the volume control and the 3D menu. Commands that may wait for the engine (stop,
// seek) leave as signals; all others go to the player through PlayerCommands. GUI thread.
#pragma once

#include "NormalTransparentBar.h"
#include "PlayerCommands.h"
#include "TransportLayout.h"

#include "player/QPlayer.h"

#include <QTimer>

#include <functional>
#include <map>

class NormalProgressBar;
class QAction;
class QKeyEvent;
class SettingsManager;
class ThreeDMenu;
class TransportButton;
class TransportTime;
class VolumeControl;
class VolumeSlider;

class NormalOperateBar final : public NormalTransparentBar {
    Q_OBJECT

public:
    // Names of the buttons' dynamic properties: text of the tool tip and key operation, -1 without one.
    static constexpr char TipProperty[] = "tip";
    static constexpr char HotKeyProperty[] = "hotKey";

    enum class Button {
        Play,
        Pause,
        Stop,
        Rewind,
        Fast,
        LastChapter,
        NextChapter,
        PreviousFrame,
        NextFrame,
        Volume,
        Mute,
        ThreeDCube,
        ThreeDText,
        Preview,
        Playlist,
        FullScreen,
        NormalScreen,
        MusicPixmap
    };

    explicit NormalOperateBar(QWidget *parent = nullptr);
    // A bar on other commands and settings, as tests use it. The settings outlive the bar.
    NormalOperateBar(PlayerCommands commands, SettingsManager &settings, QWidget *parent = nullptr);
    ~NormalOperateBar() override;

    // The text of the key bound to an operation at the moment of asking; empty without one.
    void setKeyText(std::function<QString(int keyOperate)> keyText) { m_keyText = std::move(keyText); }

    [[nodiscard]] TransportButton *button(Button button) const;
    [[nodiscard]] NormalProgressBar *progressBar() const { return m_progress; }
    [[nodiscard]] VolumeSlider *volumeSlider() const { return m_volumeSlider; }
    [[nodiscard]] VolumeControl *volumeControl() const { return m_volume; }
    [[nodiscard]] ThreeDMenu *threeDMenu() const { return m_threeD; }
    [[nodiscard]] QString timeText() const;
    [[nodiscard]] QPlayer::QPlayerStatus status() const { return m_status; }
    [[nodiscard]] bool isIdle() const;

    // A new source is on its way.
    void reset(const QString &displayName);
    [[nodiscard]] QString displayName() const { return m_displayName; }
    // 1 for a source on a time line, 0 for one that plays by a disc menu, which has none.
    void setSeekControl(int shown);
    void setChapterMarks(const QVector<int> &seconds);
    void setFullScreen(bool fullScreen);
    // Takes a control out of the bar, or puts it back: what it opens is not there.
    void setPlaceAvailable(TransportPlace place, bool available);
    // A window that cannot be resized by hand has no grip.
    void setGripEnabled(bool enabled) { m_gripEnabled = enabled; }
    // The time above the pointer, for sources without a picture of that moment.
    void setHoverTextEnabled(bool enabled);
    // Cover of the music that plays; null for everything else.
    void setMusicPixmap(const QPixmap &cover);
    void setMusicViewHidden(bool hidden);

    // A key of the window while the bar is shown: Tab and Shift+Tab move the keyboard's cursor along the bar,
    // Enter presses, the arrows move a slider, Escape ends it. False when the key is not for the bar.
    bool handleKey(QKeyEvent *event);
    // The keyboard is in the bar, and the key does something there.
    [[nodiscard]] bool takesKey(const QKeyEvent &event) const;

    void retranslate();

    [[nodiscard]] QPainterPath opaqueShape() const override;
    [[nodiscard]] bool takesMouseAt(const QPoint &position) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void slot_addVolume();
    void slot_reduceVolume();
    void slot_playClicked();
    void slot_stopClicked();
    void slot_pauseClicked();
    void slot_muteClicked();
    void slot_VolumnClicked();
    void slot_rewindClicked();
    void slot_fastClicked();
    void slot_previewClicked();
    void slot_playlistClicked();
    void slot_3dTextClicked();
    void slot_3dCubeClicked();
    void slot_lastChapterClicked();
    void slot_nextChapterClicked();
    void slot_fullScreenClicked();
    void slot_normalScreenClicked();
    void slot_changeVolume(int nCount);
    void slot_hidePreviewButton();
    void slot_clickPreview();
    void slot_nextFrameClicked();
    void slot_lastFrameClicked();
    void slot_updatePlaylistButton(bool bChecked);
    void slot_moveVolumnSlider(int nValue);
    void slot_moveProgressSlider(int nValue);
    void slot_setUiByStatus(QPlayer::QPlayerStatus status);
    void slot_setTimeInfo(int crtSecTime, int totalSecTime);
    void slot_responseSeekState(VD_SeekState state);
    void slot_dealMenuAction(QAction *action);

signals:
    void sig_stopClicked();
    void sig_fullScreenClicked();
    void sig_normalScreenClicked();
    void sig_previewClicked(bool isShow);
    void sig_playlistClicked(bool isChecked);
    void sig_seek(int nTime);
    void sig_seeked();
    void sig_nextFrameClicked();
    void sig_previousFrameClicked();
    // The source has no other chapter: the neighbour in the queue.
    void sig_playNext();
    void sig_playLast();
    void sig_resize(QPoint pt);
    void sig_updateBorder();
    void sig_musicPixmapClicked();
    void sig_musicViewShowHideChanged(bool bHidden);

    // Use of a control, to be counted.
    void sig_userBehaviour(QString name, QString value);
    // The 3D choices have changed.
    void sig_setup3D();
    void sig_more3DSettings();
    // For the user to read.
    void sig_message(QString text);

protected:
    [[nodiscard]] QRect panelRect() const override;
    void compactChanged() override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void enterEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void makeButtons();
    void connectParts();
    [[nodiscard]] TransportLayout layoutOfSize() const;
    void arrange();
    // Whether a button is the one of its place that is seen at this moment.
    [[nodiscard]] bool isFace(Button button) const;
    void putButtons();
    void updateEnabled();
    void showTime();
    void showBubble(const QString &time, QPoint global);
    void hideBubble();
    [[nodiscard]] QRect bubbleRect() const;
    void buildToolTip(QWidget *control) const;
    void setKeyboardUsed(bool used);
    void setPreviewAway(bool away);
    void popUp3DMenu(TransportButton *under);
    void behaviour(const char *name);
    void stepFrame(bool forward);

    PlayerCommands m_commands;
    std::function<QString(int)> m_keyText;
    VolumeControl *m_volume;
    ThreeDMenu *m_threeD;
    NormalProgressBar *m_progress;
    VolumeSlider *m_volumeSlider;
    TransportTime *m_time;
    std::map<Button, TransportButton *> m_buttons;
    TransportLayout m_layout;
    TransportLayout::PlaceSet m_absent;

    QPlayer::QPlayerStatus m_status{QPlayer::QPlayerStatus_None};
    QString m_displayName;
    int m_seconds{0};
    int m_totalSeconds{0};
    bool m_hasTimeLine{true};
    // The engine is on its way to a target: the positions that it still reports are old.
    bool m_seeking{false};
    QTimer m_seekGuard;
    bool m_fullScreen{false};
    bool m_previewAway{false};
    bool m_musicViewHidden{false};
    bool m_gripEnabled{true};
    bool m_gripping{false};
    bool m_hoverTextEnabled{true};
    QString m_bubbleText;
    int m_bubbleX{0};
};
