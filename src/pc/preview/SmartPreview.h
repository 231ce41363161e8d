// Pictures of the source in PC mode: makes the strip and the picture above the seek slider, feeds both from
// one fetcher, and decides what a click on the bar's button comes to.
//
// Owns the fetcher and both widgets, which stand in the window. A disc has no pictures: its slider shows the
// time alone, and the button says so. GUI thread.
#pragma once

#include "NormalPreviewPopView.h"
#include "NormalPreviewView.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class IPreviewSource;
class NormalOperateBar;
class OverlayHost;
class PreviewFetcher;
class QKeyEvent;
class QWidget;

class SmartPreview final : public QObject {
    Q_OBJECT

public:
    enum class Kind { File, Disc };

    // Pictures and seeks through the program's player.
    explicit SmartPreview(QWidget *window);
    // seek: what a click on a picture does, see NormalPreviewView.
    SmartPreview(QWidget *window, std::shared_ptr<IPreviewSource> source,
                 std::function<void(double seconds)> seek);
    ~SmartPreview() override;

    // Places both over the picture: the strip above the bar, the small picture where it puts itself.
    void addTo(OverlayHost &host, int stripLevel, int popLevel);
    // Takes the bar's hover, button and seeks.
    void connectBar(NormalOperateBar *bar);

    // A source plays, or is on its way.
    void beginSource(const QString &path, Kind kind);
    // Stop, end or failure: both go, and the session with the source ends.
    void endSource();
    // The player is about to go: ends the fetching thread, in a bounded time.
    void shutDown();

    [[nodiscard]] bool isStripOpen() const;
    // A key of the window. False when the strip is closed or does not want it.
    [[nodiscard]] bool takesKey(const QKeyEvent &event) const;
    bool handleKey(QKeyEvent *event);
    void retranslate();

    [[nodiscard]] NormalPreviewView *strip() const { return m_strip.data(); }
    [[nodiscard]] NormalPreviewPopView *popView() const { return m_pop.data(); }
    [[nodiscard]] PreviewFetcher *fetcher() const { return m_fetcher; }

public slots:
    // The bar's button: show the strip, or close it.
    void slot_previewClicked(bool isShow);
    void slot_setTimeInfo(int crtSecTime, int totalSecTime);

signals:
    // The strip is open, or not: the bar's button follows.
    void sig_stripShown(bool isShown);
    // Use of the feature, to be counted.
    void sig_userBehaviour(QString name, QString value);
    // For the user to read.
    void sig_message(QString text);

private:
    void connectParts();
    void closeStrip();

    PreviewFetcher *m_fetcher;
    QPointer<NormalPreviewView> m_strip;
    QPointer<NormalPreviewPopView> m_pop;
    Kind m_kind{Kind::File};
    bool m_hasSource{false};
    int m_totalSeconds{0};
};
