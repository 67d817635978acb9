#pragma once

#include <QtGlobal>

#ifdef RAVIK_LIBRARY
#define RAVIK_EXPORT Q_DECL_EXPORT
#else
#define RAVIK_EXPORT Q_DECL_IMPORT
#endif
