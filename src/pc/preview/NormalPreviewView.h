// The strip of pictures of the source: a click, or Enter, jumps to one of them.
//
// Fills its model row by row through the fetcher, which it does not own and which outlives it. Knows the
// states closed, filling and filled; a close ends the filling and the session with the source, and no row
// arrives after it. As an overlay it is placed by the OverlayHost and gets its keys through handleKey(),
// because its window is never the active one. GUI thread.
#pragma once

#include "PreviewPlan.h"

#include "ui/AnimateObject.h"
#include "ui/OverlayWidget.h"

#include <QModelIndex>
#include <QVariant>

#include <functional>
#include <vector>

class DialogSlider;
class NormalPreviewDelegate;
class PreviewFetcher;
class QKeyEvent;
class QLabel;
class QListView;
class QStandardItemModel;
class TransportButton;

class NormalPreviewView final : public OverlayWidget, public AnimateObject {
    Q_OBJECT

public:
    enum class State { Closed, Filling, Filled };
    using Seek = std::function<void(double seconds)>;

    // Seeks in the program's player.
    explicit NormalPreviewView(PreviewFetcher &fetcher, QWidget *parent = nullptr);
    NormalPreviewView(PreviewFetcher &fetcher, Seek seek, QWidget *parent = nullptr);
    ~NormalPreviewView() override;

    // Shows the pictures of the fetcher's source; a length of 0 means that it is not known.
    void open(int totalSeconds);
    void close();
    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] QString sourcePath() const { return m_sourcePath; }
    // 1: the worker shall end, or has.
    [[nodiscard]] int stopFlag() const;

    // What plays now, in seconds, to be marked among the pictures.
    void setPlayingSecond(int second);

    // A key of the window while the strip is open. False when it is not for the strip.
    [[nodiscard]] bool takesKey(const QKeyEvent &event) const;
    bool handleKey(QKeyEvent *event);
    void retranslate();

    [[nodiscard]] QListView *list() const { return m_list; }
    [[nodiscard]] QStandardItemModel *model() const { return m_model; }
    [[nodiscard]] DialogSlider *zoomSlider() const { return m_zoom; }
    [[nodiscard]] DialogSlider *quantitySlider() const { return m_quantity; }
    // Stands in the place of pictures that are not there; empty otherwise.
    [[nodiscard]] QString noteText() const;

    [[nodiscard]] QSize sizeHint() const override;

    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void slot_changeZoom(int nValue);
    void slot_changeQuanlity(int nValue);
    void slot_seek(QModelIndex index);
    void slot_animateValueChange(QVariant value);

signals:
    // No picture is the one under the cursor any more.
    void sig_clearCurrentIndex();
    // The user has jumped to a picture.
    void sig_seeked();
    // The user wants the strip to go.
    void sig_closeClicked();

protected:
    [[nodiscard]] int cornerRadius() const override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void makeParts();
    void connectParts();
    void applySheet();
    void arrange();
    void fitSize();
    void scrollToCell(int cell);
    void appendRow(int positionMs, const QByteArray &png);
    void endFilling();
    void clearRows();
    void hideRow(int row);
    void markPlaying();
    void followPlaying();
    void moveCursor(int key);
    [[nodiscard]] int nextRow(int from, int direction) const;
    // The parts that the keyboard goes along, and the one where it is.
    [[nodiscard]] std::vector<QWidget *> stops() const;
    [[nodiscard]] QWidget *keyboardPart() const;
    void setKeyboardUsed(bool used);
    void showNote(const QString &text);
    [[nodiscard]] int room() const;
    [[nodiscard]] int listHeight() const;

    PreviewFetcher &m_fetcher;
    Seek m_seek;
    State m_state{State::Closed};
    QString m_sourcePath;
    int m_wantedRows{0};
    bool m_hasPicture{false};
    bool m_hasCursor{false};   // the list's current picture was chosen by the user
    bool m_isFollowing{false}; // the list stays at what plays until the user moves it
    int m_playingSecond{0};
    int m_playingRow{-1};
    double m_shown{0.0}; // from 0, gone, to 1, fully there
    PreviewPlan::Cells m_cells;

    QStandardItemModel *m_model;
    QListView *m_list;
    NormalPreviewDelegate *m_delegate;
    DialogSlider *m_zoom;
    DialogSlider *m_quantity;
    QLabel *m_title;
    QLabel *m_zoomText;
    QLabel *m_quantityText;
    QLabel *m_note;
    TransportButton *m_closeButton;
};
