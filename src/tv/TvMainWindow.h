// The single window of TV mode: frameless, in full screen on the screen that TvScreenManager chose, over a
// stack of pages. Takes every key operation and passes it to the page in front. GUI thread.
#pragma once

#include "core/ILanguageBase.h"
#include "keys/KeyOperateType.h"

#include <QWidget>

class QStackedWidget;
class TvPlayingWidget;
class TvStartWidget;

class TvMainWindow final : public QWidget, public ILanguageBase {
    Q_OBJECT
public:
    explicit TvMainWindow(QWidget *parent = nullptr);

    // For a program that was started to play one source and then to end.
    void setExitAfterPlaying(bool exit) { m_exitAfterPlaying = exit; }
    [[nodiscard]] bool exitsAfterPlaying() const { return m_exitAfterPlaying; }
    void playAtOnce(const QString &path);

    [[nodiscard]] TvPlayingWidget *playingPage() const { return m_playingWgt; }
    [[nodiscard]] bool isPlayingPageShown() const;

    void retranslate() override;

public slots:
    void SLOT_doubleClickFileToPlay(QString path);
    void SLOT_startPlaying(QString displayText, QString path);
    void SLOT_exitPlaying();
    void SLOT_keyOperate(KeyOperateType type);
    void SLOT_closeWindow();
    void SLOT_minWindow();
    void SLOT_updateGeometry(QRect crtScreenRect);
    void SLOT_haveMouseMove();
    void SLOT_mouseMoveStop();

protected:
    void closeEvent(QCloseEvent *event) override;
    void enterEvent(QEvent *event) override;

private:
    void makePages();
    void connectParts();
    void showPage(QWidget *page);
    void placeOn(const QRect &crtScreenRect);

    QStackedWidget *m_stack{nullptr};
    TvStartWidget *m_startWgt{nullptr};
    TvPlayingWidget *m_playingWgt{nullptr};
    bool m_exitAfterPlaying{false};
    bool m_playedBeforeInit{false};
    bool m_isClosed{false};
};
