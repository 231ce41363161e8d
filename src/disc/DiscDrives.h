// Questions about drives by their letter, and about the drive that a path lies on.
//
// Letters are those of DriveLetters, in any case; images and folders bound to a letter count as optical
// drives. No function keeps state, none tells a failure other than by 0, false or an empty text. Safe on
// every thread; each may wait for the drive.
#pragma once

#include <QString>
#include <QtGlobal>

// The letter of the n-th optical drive from C to Z, counted from 0; 0 when there are fewer.
[[nodiscard]] char OpticalDriveByIndex(int n);
// The letter of the drive that the system numbers n among the optical ones; 0 when there is none.
[[nodiscard]] char OpticalDriveByDeviceNumber(int n);

[[nodiscard]] quint32 DriveVolumeSerial(char letter);

// The name of the medium, fit for a file name, in UTF-8 with a null at its end; what does not fit into size
// bytes is cut off between two characters. 1, or 0 and an empty text when there is no medium or no name.
int DriveVolumeLabel(char letter, char *buffer, int size);

// Bytes that may still be written, and all there are; each output may be null. 1, or 0 with both at 0.
int DriveFreeSpace(char letter, quint64 *freeOut, quint64 *totalOut);

[[nodiscard]] QString DriveFileSystemName(char letter);

[[nodiscard]] bool IsRemovableDrive(const QString &path);
[[nodiscard]] bool IsFixedDrive(const QString &path);
// A fixed drive that hangs neither on USB nor on IEEE 1394. False also when that can't be told.
[[nodiscard]] bool IsInternalFixedDrive(const QString &path);

[[nodiscard]] bool HasHdDvdStructure(char letter);
[[nodiscard]] bool HasBdmvStructure(char letter);
