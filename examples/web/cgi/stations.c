/* The stations of an access point:
 *
 *   ap=ADDRESS */
#include <fcntl.h>
#include <routerdb.h>
#include <unistd.h>

#include "request.h"

/* The library's calls share ten files: one request at a time. The lock goes with the program. */
static void wait_for_turn(void) {
    struct flock whole_file = {.l_type = F_WRLCK, .l_whence = SEEK_SET};
    const int file = open("/var/stations.lock", O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file >= 0) {
        fcntl(file, F_SETLKW, &whole_file);
    }
}

int main(void) {
    Parameter parameters[] = {{"ap", is_address, "the address of an access point, such as 192.168.1.2", ""}};
    read_request(parameters, 1);
    if (*parameters[0].value == '\0') {
        refuse("ap", "missing");
    }
    wait_for_turn();
    print_headers();
    GetApDevStaList(parameters[0].value);
    return finish();
}
