// Label with a picture of the resource file at the display's scale. GUI thread.
#pragma once

#include <QLabel>

class PictureLabel final : public QLabel {
    Q_OBJECT
public:
    // picture: name without its ending. designSize: shown size in design pixels.
    PictureLabel(const QString &picture, const QSize &designSize, QWidget *parent = nullptr);

    void setPicture(const QString &picture);

private:
    QSize m_designSize;
};
