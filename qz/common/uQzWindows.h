// Unit uQzWindows: the services of the system.
#pragma once

// QzGetComputerName, QzGetUserName, QzGetElevationLevel,
// QzGetCurrentThreadId: the user, the computer and the thread.
#include <qz/common/uQzWindows/Accounts.h>
// QzCleanupFileName: names that
// any system takes.
#include <qz/common/uQzWindows/FileNames.h>
// QzGetFileCreated, QzSetFileCreated and
// their kin: times of files.
#include <qz/common/uQzWindows/FileTimes.h>
// QzGetShellFolder: where documents, settings
// and other things of a kind lie.
#include <qz/common/uQzWindows/ShellFolders.h>
// QzGetWindowsVersion: the system
// as one number.
#include <qz/common/uQzWindows/SystemVersion.h>
