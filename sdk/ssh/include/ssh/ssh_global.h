#pragma once

#include <QtGlobal>

#ifdef QSSH_LIBRARY
#define QSSH_EXPORT Q_DECL_EXPORT
#else
#define QSSH_EXPORT Q_DECL_IMPORT
#endif
