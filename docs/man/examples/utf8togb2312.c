#include <routerdb.h>
#include <stdio.h>
#include <string.h>

int main(void) {
    const char name[] = "\xe5\xae\xa2\xe5\x8e\x85"; /* two characters of three bytes each */
    char converted[2 * sizeof(name)] = "";
    if (utf8togb2312(name, strlen(name), converted, sizeof(converted)) < 0) {
        return 1;
    }
    printf("%zu bytes\n", strlen(converted));
    return 0;
}
