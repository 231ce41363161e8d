// Label that scrolls a text which is too long for it: two copies follow each other, one pixel a step.
//
// The scroll runs only while browsing is enabled, the text does not fit and the label is visible; under the
// pointer it runs quick. GUI thread only.
#pragma once

#include <QLabel>
#include <QTimer>

class TextBrowseLabel final : public QLabel {
    Q_OBJECT

public:
    explicit TextBrowseLabel(QWidget *parent = nullptr);
    explicit TextBrowseLabel(const QString &text, QWidget *parent = nullptr);

    // Hides QLabel::setText: the width of the text is taken on the next turn of the event loop, after the
    // layout.
    void setText(const QString &text);
    void setBrowseEnabled(bool enabled);
    [[nodiscard]] bool isBrowsing() const { return m_timer.isActive(); }
    [[nodiscard]] bool needsBrowse() const { return m_needBrowse; }
    // Pixels that the first copy has moved to the left.
    [[nodiscard]] int position() const { return m_position; }

    [[nodiscard]] QSize minimumSizeHint() const override;

public slots:
    void slot_updateText();
    void slot_paintBrowse();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void startOrStop();
    [[nodiscard]] int textWidth() const;
    [[nodiscard]] int period() const;

    QTimer m_timer;
    int m_position{0};
    bool m_browseEnabled{false};
    bool m_needBrowse{false};
};
