// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class Transfer;

/// Why something asked of the storage was not done.
enum class StorageFault {
    None,
    NotSetUp,     ///< there is no deployment
    NoAccount,    ///< nobody is signed in
    Cancelled,    ///< by the user or the program's end
    NoConnection, ///< the network, or something in between, failed
    TimedOut,     ///< no progress for too long
    Refused,      ///< the account may not (401, 403)
    Missing,      ///< no such object (404)
    Changed,      ///< the object is not what it was meant to be (412)
    Unfinished,   ///< somebody is about to change what belongs together, or has broken that off
    Busy,         ///< later, perhaps (429, 5xx)
    Damaged,      ///< what came is not what is stored
    LocalFile,    ///< a file of this computer cannot be read or written
    InUse,        ///< another running program works on the projects
    Unexpected    ///< any other answer
};

/// How an ended transfer failed, if it did; whether a body is whole is for others to tell.
StorageFault faultOf(const Transfer& transfer);

/// The fault in words for users, without a full stop; empty for none. In the language of the program.
QString describe(StorageFault fault);

/// Whether the same can be asked again with some hope, soon.
bool mayPass(StorageFault fault);
