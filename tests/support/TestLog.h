// Catches Qt's messages while tests run: a warning or an error that no test has announced fails the test.
#pragma once

#include <QRegularExpression>
#include <QStringList>

namespace TestLog {

// Installs the catcher; called once by main().
void install();

// Announces a warning of the running test. Announcements end with the test.
void expectWarning(const QRegularExpression &pattern);

// Warnings and errors since the last call that nobody announced.
QStringList takeUnexpected();

// Info messages since the test began, oldest first.
QStringList infoLines();

// Forgets everything; called between two tests.
void reset();

} // namespace TestLog
