// What came of one HTTP call. A value, any thread.
#pragma once

#include <QByteArray>
#include <QString>

struct HttpResult {
    // 0, or what the transport's library calls the failure; 22 stands for a status outside 200 to 299.
    int error{0};
    QString errorText;
    // 0 when there was no answer.
    long httpStatus{0};
    // The answer's body, of a refusal too; what had come by then when the call broke off.
    QByteArray bytes;

    [[nodiscard]] bool isOk() const { return error == 0; }
};
