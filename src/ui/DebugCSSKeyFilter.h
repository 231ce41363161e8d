// Event filter for work on the style sheets: Ctrl+1 reads the TV sheet from the source folder and installs it
// unscaled, so that a change is seen without a build. Lives on the GUI thread; installed by hand only.
#pragma once

#include <QObject>

class DebugCSSKeyFilter final : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};
