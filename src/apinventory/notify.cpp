#include "apinventory/notify.h"

#include "core/paths.h"
#include "core/shell.h"

namespace routerdb {

void notify(Event event, unsigned long sn) {
    run_in_shell(command_size, "%s 5 4 %s#%lu >/dev/null 2>&1 &", paths::send_event,
                 event == Event::added ? "add" : "mod", sn);
}

}  // namespace routerdb
