#include <QtResource>

// Registers the pages and scripts that were compiled ahead of time. Nothing else refers to that
// part of the static library: without this, the IDE would compile all of them at each start.
static const bool registered = [] {
    Q_INIT_RESOURCE(qmlcache_emulationmanagement_ui);
    return true;
}();
