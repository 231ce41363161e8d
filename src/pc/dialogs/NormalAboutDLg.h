// What the program is: name, version, day of the build, licence, and the libraries it stands on. GUI thread.
#pragma once

#include "NormalDialogFrame.h"

#include <QDate>

class NormalAboutDLg final : public NormalDialogFrame {
    Q_OBJECT

public:
    struct Identity {
        QString product;
        QString version;
        QDate buildDate;
    };

    // The running program.
    explicit NormalAboutDLg(QWidget *parent = nullptr);
    explicit NormalAboutDLg(const Identity &identity, QWidget *parent = nullptr);

private:
    void addIdentity(const Identity &identity);
    void addLibraries();
};
