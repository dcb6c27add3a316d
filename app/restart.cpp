// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/restart.h"

#include <dlfcn.h>
#include <unistd.h>

bool restartableInPlace()
{
    void* webEngine = dlopen("libQt5WebEngineCore.so.5", RTLD_LAZY | RTLD_NOLOAD);
    if (!webEngine)
        return true;
    dlclose(webEngine);
    return false;
}

void replaceProcess(char** argv)
{
    execv("/proc/self/exe", argv);
}
