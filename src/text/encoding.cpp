#include "text/encoding.h"

#include <syslog.h>

#include <cstring>

#include "build_profile.h"
#include "routerdb.h"

namespace routerdb {

bool Converter::open() {
    if (!usable()) {
        handle_ = iconv_open(to_, from_);
    }
    return handle_ != nullptr;
}

bool Converter::convert(const char *in, std::size_t inlen, char *out) {
    std::size_t room = ROUTERDB_CONVERSION_ROOM;
    char *from = const_cast<char *>(in);  // iconv does not write there, its type says otherwise
    if (usable() && iconv(handle_, &from, &inlen, &out, &room) != static_cast<std::size_t>(-1)) {
        return true;
    }
    if (build_profile.closes_its_own) {
        close();
    }
    handle_ = nullptr;  // Deliberate: in the exact profile the converter of a failed conversion stays open.
    return false;
}

void Converter::end_text() {
    if (!build_profile.shares_converter) {
        close();
    }
}

bool Converter::usable() const {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what iconv_open returns on failure
    return handle_ != nullptr && handle_ != reinterpret_cast<iconv_t>(-1);
}

void Converter::close() {
    if (usable()) {
        iconv_close(handle_);
    }
    handle_ = nullptr;
}

int convert(Utf8ToGb2312 &converter, const char *in, std::size_t inlen, char *out, std::size_t outlen) {
    if (!converter.open()) {
        syslog(LOG_ERR, "error1\n");
        return -1;
    }
    std::memset(out, 0, outlen);
    const bool converted = converter.convert(in, inlen, out);
    converter.end_text();
    return converted ? 0 : -1;
}

int convert(Gb2312ToUtf8 &converter, const char *in, std::size_t inlen, char *out, std::size_t outlen) {
    if (!converter.open()) {
        syslog(LOG_ERR, "%s error1\n", "gb2312toutf8");
        return -1;
    }
    std::memset(out, 0, outlen);
    std::strcpy(out, in);  // a character that ends the text early still leaves something to show
    const bool converted = converter.convert(in, inlen, out);
    converter.end_text();
    if (converted) {
        return 0;
    }
    std::strcpy(out, in);  // Deliberate: here a failure gives the input back, in the other direction it does not.
    return -1;
}

}  // namespace routerdb
