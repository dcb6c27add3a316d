// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/storage/storagefault.h"

#include "cloud/http/transfer.h"

#include <QCoreApplication>

namespace {

StorageFault faultOfStatus(int status)
{
    switch (status) {
    case 401:
    case 403:
        return StorageFault::Refused;
    case 404:
        return StorageFault::Missing;
    case 412:
        return StorageFault::Changed;
    case 408:
    case 429:
        return StorageFault::Busy;
    default:
        return status >= 500 ? StorageFault::Busy : StorageFault::Unexpected;
    }
}

const char* text(StorageFault fault)
{
    switch (fault) {
    case StorageFault::None:
        return "";
    case StorageFault::NotSetUp:
        return QT_TRANSLATE_NOOP("Storage", "No cloud is set up");
    case StorageFault::NoAccount:
        return QT_TRANSLATE_NOOP("Storage", "Nobody is signed in");
    case StorageFault::Cancelled:
        return QT_TRANSLATE_NOOP("Storage", "Cancelled");
    case StorageFault::NoConnection:
        return QT_TRANSLATE_NOOP("Storage", "No connection to the cloud");
    case StorageFault::TimedOut:
        return QT_TRANSLATE_NOOP("Storage", "The cloud does not answer");
    case StorageFault::Refused:
        return QT_TRANSLATE_NOOP("Storage", "The cloud refuses this computer's account");
    case StorageFault::Missing:
        return QT_TRANSLATE_NOOP("Storage", "The cloud does not have it");
    case StorageFault::Changed:
        return QT_TRANSLATE_NOOP("Storage", "Somebody else has changed it meanwhile");
    case StorageFault::Unfinished:
        return QT_TRANSLATE_NOOP("Storage", "It is being published, or a publish of it was broken off");
    case StorageFault::Busy:
        return QT_TRANSLATE_NOOP("Storage", "The cloud is busy");
    case StorageFault::Damaged:
        return QT_TRANSLATE_NOOP("Storage", "It arrived damaged");
    case StorageFault::LocalFile:
        return QT_TRANSLATE_NOOP("Storage", "A file of this computer cannot be read or written");
    case StorageFault::InUse:
        return QT_TRANSLATE_NOOP("Storage", "Another Nuvex is working on these projects");
    case StorageFault::Unexpected:
        return QT_TRANSLATE_NOOP("Storage", "The cloud's answer is not understood");
    }
    return "";
}

} // namespace

StorageFault faultOf(const Transfer& transfer)
{
    if (transfer.succeeded())
        return StorageFault::None;
    if (transfer.writeFailed())
        return StorageFault::LocalFile;
    const int status =
        transfer.reply() ? transfer.reply()->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() : 0;
    const bool isAnswer = status >= 300 || (status != 0 && transfer.httpStatus() != 0);
    if (isAnswer)
        return faultOfStatus(status);
    switch (transfer.error()) {
    case QNetworkReply::OperationCanceledError:
        return StorageFault::Cancelled;
    case QNetworkReply::TimeoutError:
        return StorageFault::TimedOut;
    default:
        return StorageFault::NoConnection;
    }
}

QString describe(StorageFault fault)
{
    return QCoreApplication::translate("Storage", text(fault));
}

bool mayPass(StorageFault fault)
{
    switch (fault) {
    case StorageFault::NoConnection:
    case StorageFault::TimedOut:
    case StorageFault::Refused: // a token that has ended is one
    case StorageFault::Busy:
    case StorageFault::Damaged:
    case StorageFault::Unexpected:
        return true;
    default:
        return false;
    }
}
