// The exported functions about texts. Each converts its arguments, calls, and converts the result.
#include <cstring>

#include "routerdb.h"
#include "text/encoding.h"
#include "text/id_list.h"
#include "text/time_of_day.h"

using namespace routerdb;

int muti_id_convert_int_array(char *text, int *ids) {
    return read_ids(text, ids);
}

size_t generate_db_params(char *text, char *out, unsigned int size, int column) {
    append_id_condition(text, out, size, column);
    return std::strlen(out);
}

int utf8togb2312(const char *in, size_t inlen, char *out, size_t outlen) {
    Utf8ToGb2312 converter;
    return convert(converter, in, inlen, out, outlen);
}

int gb2312toutf8(const char *in, size_t inlen, char *out, size_t outlen) {
    Gb2312ToUtf8 converter;
    return convert(converter, in, inlen, out, outlen);
}

int change_time_to_int(const char *hhmm) {
    return time_of_day(hhmm);
}

int check_time_one_day(const char *a, const char *b) {
    return time_of_day(a) > time_of_day(b) ? 1 : 0;
}
