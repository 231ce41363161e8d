// Reads the PCM that the engine hands out while music plays, for the visualisers.
//
// One object a process, GUI thread.
#pragma once

#include <QObject>
#include <QString>

class pcmParser final : public QObject {
    Q_OBJECT
public:
    static pcmParser *instance();

    explicit pcmParser(QString scratchFile, QObject *parent = nullptr);

    // Ends the tap at exit: nothing is left of the scratch file.
    void stop();

public slots:
    // Removes the scratch file.
    void slot_cleanStackData();

private:
    QString m_scratchFile;
};
