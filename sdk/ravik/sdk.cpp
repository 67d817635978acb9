#include "ravik/sdk.h"

#include "ravik/emulator.h"
#include "ravik/virtualmachine.h"

using namespace Qt::StringLiterals;

namespace Ravik {

static Sdk *theSdk = nullptr;

Sdk::Sdk(QObject *parent)
    : QObject(parent)
{
    Q_ASSERT(!theSdk);
    theSdk = this;
}

Sdk::~Sdk()
{
    theSdk = nullptr;
}

Sdk *Sdk::instance()
{
    return theSdk;
}

QString Sdk::osVariant(TextStyle style)
{
    return style == TextStyle::Identifier ? u"nimbra-os"_s : u"Nimbra OS"_s;
}

// These destructors are here so that the interfaces' type information is in the library.
Emulator::~Emulator() = default;
VirtualMachine::~VirtualMachine() = default;

} // namespace Ravik
