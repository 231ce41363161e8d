// Button that shows one picture, another while the pointer is over it, and scales both with the display. It
// never takes the keyboard: keys belong to the window. GUI thread.
#pragma once

#include <QIcon>
#include <QPushButton>

class PictureButton final : public QPushButton {
    Q_OBJECT
public:
    // The name of the picture in the resource file, without its ending; "_hover" is added for the second.
    explicit PictureButton(const QString &picture, QWidget *parent = nullptr);

    void setPicture(const QString &picture);

    // Sizes of button and picture in design pixels.
    void setDesignSize(const QSize &button, int picture);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QString m_picture;
    QIcon m_plain;
    QIcon m_hover;
};
