// No two static bindings share an address: what an add and a modify ask the service first, and what they make of it.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "support/fake_service.h"
#include "support/named.h"
#include "support/profile.h"
#include "support/record.h"
#include "support/streams.h"

namespace {

using support::FakeService;
using support::reply_of;
using support::words;

using Lines = std::vector<std::string>;

constexpr char ip_count[] = "100 1 66 select count(*) from dhcpserverstaticbind where ip='192.168.1.20';";
constexpr char ip_owner[] = "100 1 60 select id from dhcpserverstaticbind where ip='192.168.1.20';";
constexpr char mac_count[] = "100 1 72 select count(*) from dhcpserverstaticbind where mac='00:11:22:33:44:55';";
constexpr char mac_owner[] = "100 1 66 select id from dhcpserverstaticbind where mac='00:11:22:33:44:55';";
constexpr char insert[] =
    "1 2 111 insert into dhcpserverstaticbind(devtype,mac,ip,mark) values('2','00:11:22:33:44:55','192.168.1.20',"
    "'printer');";
constexpr char update[] =
    "1 2 114 update dhcpserverstaticbind set devtype='2',mac='00:11:22:33:44:55',ip='192.168.1.20',mark='printer' "
    "where id='7';";

/// Binding 7.
std::string binding() {
    return support::Record(352, 'Z')
        .number(0, 7)
        .number(156, 2)
        .text(160, "00:11:22:33:44:55")
        .text(180, "192.168.1.20")
        .text(200, "printer")
        .bytes();
}

int add() {
    return AddDhcpStaticItem(reinterpret_cast<const DhcpStaticItem *>(binding().data()));
}

int modify() {
    return ModifyDhcpStaticItem(reinterpret_cast<const DhcpStaticItem *>(binding().data()));
}

/// An answer as the service gives it: terminated.
std::string answer(const std::string &text) {
    return reply_of(text + '\0');
}

std::string blanks(std::size_t count) {
    return std::string(count, ' ');
}

std::string zeros(std::size_t count) {
    return std::string(count, '0');
}

/// The answers to its questions, and what a call makes of them.
struct Clash : support::Named {
    int (*call)();
    Lines answers;
    int result;
    Lines requests;
};

Clash adding(const char *name, const Lines &answers, int result) {
    const Lines requests[] = {{ip_count, mac_count, insert}, {ip_count}, {ip_count, mac_count}};
    return {std::string("add: ") + name, add, answers, result, requests[result]};
}

Clash modifying(const char *name, const Lines &answers, int result) {
    const Lines requests[] = {{ip_count, ip_owner, mac_count, mac_owner, update},
                              {ip_count, ip_owner},
                              {ip_count, ip_owner, mac_count, mac_owner}};
    return {std::string("modify: ") + name, modify, answers, result, requests[result]};
}

std::vector<Clash> clashes_of_new_bindings() {
    const std::string none = answer("0");
    const std::string one = answer("1");
    return {
        adding("nobody has the addresses", {none, none, reply_of("")}, 0),
        adding("the IP address is taken", {one, none}, 1),
        adding("the IP address is taken many times", {answer("128"), none}, 1),
        adding("the MAC address is taken", {none, one}, 2),
        adding("both are taken", {one, one}, 1),
        adding("a count below zero", {answer("-1"), answer("-2147483648"), reply_of("")}, 0),
        adding("a count with blanks and letters around it", {none, answer(" 1row")}, 2),
        adding("answers that are no numbers", {answer("one"), answer("'1'"), reply_of("")}, 0),
        adding("empty texts", {answer(""), answer(""), reply_of("")}, 0),
        adding("answers without data", {reply_of(""), reply_of(""), reply_of("")}, 0),
        adding("answers of a size below zero", {words({0, 0, 0xffffffff}), words({0, 0, 0x80000000}), reply_of("")}, 0),
        adding("answers that break off in their header", {"100", "", reply_of("")}, 0),
        adding("answers that break off before their data", {words({0, 0, 2}), words({0, 0, 2}), reply_of("")}, 0),
        adding("an answer without a terminator", {none, reply_of("1")}, 2),
        adding("an answer ends with its size", {words({0, 0, 1}) + "01", words({0, 0, 2}) + "001", reply_of("")}, 0),
        adding("an answer ends with its terminator", {reply_of(std::string("0\0001", 3)), none, reply_of("")}, 0),
        adding("an answer longer than any number", {none, reply_of("1 " + std::string(5000, 'x'))}, 2),
        adding("the reply to the insert does not count", {none, none, one}, 0),
        adding("a count behind 50,000 blanks", {none, reply_of(blanks(50000) + "1")}, 2),
        adding("a count behind 50,000 zeros", {none, reply_of(zeros(50000) + "1")}, 2),
        adding("a count behind blanks, a sign and zeros",
               {answer(blanks(99) + "-" + zeros(99) + "1"), answer(blanks(99) + "+" + zeros(99) + "1")}, 2),
        adding("blanks without a count", {reply_of(blanks(50000)), reply_of(blanks(1)), reply_of("")}, 0),
        adding("a count that the announced size cuts off",
               {words({0, 0, 30}) + blanks(30) + "1", words({0, 0, 30}) + zeros(30) + "1", reply_of("")}, 0),
        adding("blanks that break off before the count", {words({0, 0, 31}) + blanks(30), none, reply_of("")}, 0),
    };
}

std::vector<Clash> clashes_of_changed_bindings() {
    const std::string none = answer("0");
    const std::string one = answer("1");
    const std::string two = answer("2");
    const std::string own = answer("7");
    const std::string other = answer("8");
    const std::string nobody = reply_of("");
    return {
        modifying("nobody has the addresses", {none, nobody, none, nobody, nobody}, 0),
        modifying("the binding itself has them", {one, own, one, own, nobody}, 0),
        modifying("the binding itself has one of them", {none, nobody, one, own, nobody}, 0),
        modifying("another one has the IP address", {one, other, none, nobody}, 1),
        modifying("another one has the MAC address", {none, nobody, one, other}, 2),
        modifying("another one has the MAC address, the IP address is its own", {one, own, one, other}, 2),
        modifying("another one has both", {one, other, one, other}, 1),
        modifying("the first of many is the binding itself", {two, own, two, own, nobody}, 0),
        modifying("the first of many is another one", {two, other, none, nobody}, 1),
        modifying("without a count the id does not count", {none, other, none, other, nobody}, 0),
        modifying("a count below zero", {answer("-1"), other, answer("-1"), other, nobody}, 0),
        modifying("an id is missing", {one, nobody}, 1),
        modifying("an id that is no number", {one, own, one, answer("seven")}, 2),
        modifying("an id without a terminator", {reply_of("1"), reply_of("7"), reply_of("1"), reply_of("7"), nobody},
                  0),
        modifying("an id ends with its size",
                  {one, words({0, 0, 1}) + "71", one, words({0, 0, 2}) + std::string("7\0001", 3), nobody}, 0),
        modifying("an id that starts with the same digit", {one, answer("77")}, 1),
        modifying("answers that are no numbers", {answer("x"), other, answer("x"), other, nobody}, 0),
        modifying("answers without data", {nobody, nobody, nobody, nobody, nobody}, 0),
    };
}

class StaticBinding : public testing::TestWithParam<Clash> {};

TEST_P(StaticBinding, is_written_when_no_other_one_has_its_addresses) {
    FakeService service(GetParam().answers);
    support::streams_of([] { EXPECT_EQ(GetParam().call(), GetParam().result); });
    Lines requests;
    for (const std::string &request : service.requests()) {
        requests.push_back(support::readable(request));
    }
    EXPECT_EQ(requests, GetParam().requests);
}

INSTANTIATE_TEST_SUITE_P(Added, StaticBinding, testing::ValuesIn(clashes_of_new_bindings()));
INSTANTIATE_TEST_SUITE_P(Modified, StaticBinding, testing::ValuesIn(clashes_of_changed_bindings()));

TEST(StaticBindings, are_counted_behind_any_number_of_blanks_and_zeros) {
    constexpr std::size_t most = 26;
    Lines answers;
    for (std::size_t count = 0; count <= most; ++count) {
        answers.insert(answers.end(), {reply_of(blanks(count) + "1"), reply_of(zeros(count) + "1")});
    }
    const FakeService service(answers);
    for (std::size_t count = 0; count <= most; ++count) {
        EXPECT_EQ(add(), 1) << count << " blanks";
        EXPECT_EQ(add(), 1) << count << " zeros";
    }
}

TEST(StaticBindings, are_their_own_behind_any_number_of_zeros) {
    Lines answers;
    for (const std::size_t count : {21U, 22U, 23U, 24U, 1000U}) {
        answers.insert(answers.end(),
                       {reply_of("1"), reply_of(zeros(count) + "7"), reply_of("1"), reply_of(blanks(count) + "8")});
    }
    const FakeService service(answers);
    for (std::size_t i = 0; i < answers.size() / 4; ++i) {
        EXPECT_EQ(modify(), 2) << i;
    }
}

TEST(StaticBindings, without_a_service_clash_with_nothing) {
    const auto streams = support::streams_of([] {
        EXPECT_EQ(add(), 0);
        EXPECT_EQ(modify(), 0);
    });
    std::string failures;
    for (int request = 0; request < 3 + 5; ++request) {
        failures += "cannot connect sql socket client: No such file or directory\n";
    }
    EXPECT_EQ(streams.error, failures);
}

}  // namespace
