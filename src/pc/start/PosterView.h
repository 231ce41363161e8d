// The picture behind the start page; a new one fades in over the former.
//
// Files and bytes are read and decoded on a worker. Two numbers, each from 0 to 1, say what is seen:
// posterProgress how far the new picture has come over the former one, opacityProgress how much it is shaded,
// because on a picture of anywhere the texts of the page would not be readable. GUI thread.
#pragma once

#include "ui/AnimateObject.h"

#include <QImage>
#include <QPixmap>
#include <QVariant>
#include <QWidget>

#include <memory>

class ThreadWorker;

class PosterView final : public QWidget, public AnimateObject {
    Q_OBJECT

public:
    // Names of the two animations.
    static constexpr char PosterAnimation[] = "poster";
    static constexpr char OpacityAnimation[] = "opacity";
    static constexpr char DefaultPicture[] = ":/Resources/origin/DefaultBackground.jpg";

    explicit PosterView(QWidget *parent = nullptr);
    ~PosterView() override;

    // source: a QPixmap or QImage, the bytes of a picture, or its path; anything else, and what can't be
    // read, gives the default picture. A later call replaces an earlier one that is still being read.
    void setPoster(const QVariant &source, bool animate);

    [[nodiscard]] double posterProgress() const { return m_posterProgress; }
    void setPosterProgress(double progress);
    [[nodiscard]] double opacityProgress() const { return m_opacityProgress; }
    void setOpacityProgress(double progress);

    [[nodiscard]] bool isDefault() const { return m_isDefault; }
    [[nodiscard]] QSize pictureSize() const { return m_picture.size(); }

    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

signals:
    // The picture asked for has been read and is on its way in.
    void posterChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void load(const QVariant &source, bool animate);
    // scaled: the picture in the size shown, or null.
    void present(const QPixmap &picture, const QPixmap &scaled, bool isDefault, bool animate);
    void drawCovering(QPainter &painter, const QPixmap &picture, QPixmap &scaled) const;

    std::unique_ptr<ThreadWorker> m_worker;
    quint64 m_latest{0};
    QPixmap m_picture;
    QPixmap m_former;
    // In the size shown; made anew when that changes.
    mutable QPixmap m_scaled;
    mutable QPixmap m_formerScaled;
    bool m_isDefault{true};
    double m_posterProgress{1.0};
    double m_opacityProgress{0.0};
};
