// What the SQL service answers.
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "fuzz/fuzz.h"
#include "routerdb.h"

const char fuzz::what[] = "replies of the SQL service: lists and records hold what was sent, and nothing beyond them";

void fuzz::prepare() {}

namespace {

using fuzz::build_profile;
using fuzz::require;

constexpr std::size_t header_size = 12;

/// The size that a reply announces; 0 for one without a whole header, or with a negative size.
std::size_t announced(const std::string &reply) {
    std::int32_t size = 0;
    if (reply.size() >= header_size) {
        std::memcpy(&size, reply.data() + 8, sizeof(size));
    }
    return size > 0 ? static_cast<std::size_t>(size) : 0;
}

/// Bytes of data that have come, as far as they were announced.
std::string data_of(const std::string &reply) {
    return reply.size() > header_size ? reply.substr(header_size, announced(reply)) : "";
}

void send(const std::string &reply) {
    const SqlRequest request{ROUTERDB_TABLE_USER_URL, ROUTERDB_QUERY, 1, "x"};
    SqlReply answer{};
    errno = 0;
    if (sqlclient_cmd(&request, &answer) == 0) {
        const std::string data = data_of(reply);
        require(answer.size < 1 || static_cast<std::size_t>(answer.size) == announced(reply), "another size");
        require(answer.size < 1 || std::memcmp(answer.data, data.data(), data.size()) == 0, "other data");
        require(!build_profile.checks_replies || data.size() == announced(reply), "half a reply is taken");
        std::free(answer.data);
    } else {
        require(!build_profile.tells_failures || errno == EPROTO, "a failure without its reason");
    }
}

/// Deliberate: in exact lists run on as far as the reply goes, for which the caller has the room; a reply may announce
/// more than it holds. Beyond that there is none.
std::size_t room_for(const std::string &reply, std::size_t list_size) {
    return build_profile.caps_lists ? list_size : std::max(list_size, sizeof(std::uint32_t) + announced(reply));
}

bool is_zero(const char *bytes, std::size_t size) {
    return *bytes == '\0' && std::memcmp(bytes, bytes + 1, size - 1) == 0;
}

template <typename Record, typename List>
void list(void (*function)(List *), const std::string &reply) {
    fuzz::Room room(room_for(reply, sizeof(List)));
    function(room.as<List>());
    const std::uint32_t count = room.as<List>()->count;
    const std::string data = data_of(reply);
    require(count <= announced(reply) / sizeof(Record), "more records than were sent");
    require(!build_profile.caps_lists || count <= ROUTERDB_LIST_CAPACITY, "more records than fit");
    require(std::memcmp(room.as<List>()->items, data.data(), std::min(data.size(), count * sizeof(Record))) == 0,
            "other records");
    const std::size_t used = sizeof(count) + count * sizeof(Record);
    require(used >= sizeof(List) || is_zero(room.text() + used, sizeof(List) - used),
            "a list that is not zero behind its records");
}

template <typename Record>
void get(void (*function)(int, Record *), const std::string &reply) {
    fuzz::Room room(sizeof(Record));
    function(1, room.as<Record>());
    const std::string data = data_of(reply);
    require(is_zero(room.text(), sizeof(Record)) ||
                std::memcmp(room.text(), data.data(), std::min(data.size(), sizeof(Record))) == 0,
            "another record");
}

void add_binding(const std::string & /*reply*/) {
    const DhcpStaticItem item{};
    const int result = AddDhcpStaticItem(&item);
    require(result >= 0 && result <= 2, "a result that there is not");
}

void modify_binding(const std::string & /*reply*/) {
    const DhcpStaticItem item{};
    const int result = ModifyDhcpStaticItem(&item);
    require(result >= 0 && result <= 2, "a result that there is not");
}

#define RECORD(Record)                                                                      \
    [](const std::string &reply) { list<Record, Record##List>(Get##Record##List, reply); }, \
        [](const std::string &reply) { get<Record>(Get##Record, reply); }

constexpr void (*calls[])(const std::string &reply) = {
    send,
    add_binding,
    modify_binding,
    RECORD(DhcpStaticItem),
    RECORD(UrlFilterItem),
    RECORD(MacFilterItem),
    RECORD(IpFilterItem),
    RECORD(TimeGroupItem),
    RECORD(IpGroupItem),
    RECORD(SmartQosItem),
    RECORD(UserUrlItem),
    RECORD(FamliyMemberItem),
    RECORD(PortFwItem),
    RECORD(QosItem),
    RECORD(BehaviorItem),
    RECORD(DomainIpItem),
};

}  // namespace

void fuzz::run(Input input) {
    // Memory for what a reply announces is taken before it comes, in exact whatever that is: a large size would only
    // take time.
    constexpr std::size_t large = 1 << 20;
    const auto call = calls[input.take_number(sizeof(calls) / sizeof(*calls))];
    const std::string reply = input.take_rest();
    if (build_profile.checks_replies || announced(reply) <= large) {
        answer_with(reply);
        call(reply);
    }
}
