#include "json/faults.h"

#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>

namespace faults {

void make_unopenable(const char *database) {
    if (unlink(database) != 0 || mkdir(database, 0755) != 0) {
        throw std::runtime_error("cannot replace " + std::string(database));
    }
}

void before(support::Recorder &recorder, const std::string &line, int n, const std::function<void()> &action) {
    recorder.watch([line, action, left = n](const std::string &noted) mutable {
        if (noted == line && --left == 0) {
            action();
        }
    });
}

}  // namespace faults
