// Static bindings through the service: addresses that are taken, by others and by the binding itself.
#include <gtest/gtest.h>

#include "routerdb.h"
#include "support/database.h"
#include "support/service.h"

namespace {

using Lines = std::vector<std::string>;

DhcpStaticItem binding(int id, const std::string &mac, const std::string &ip, const std::string &mark) {
    DhcpStaticItem item{};
    item.id = id;
    mac.copy(item.mac, sizeof(item.mac) - 1);
    ip.copy(item.ip, sizeof(item.ip) - 1);
    mark.copy(item.mark, sizeof(item.mark) - 1);
    return item;
}

int add(const std::string &mac, const std::string &ip) {
    const DhcpStaticItem item = binding(0, mac, ip, "added");
    return AddDhcpStaticItem(&item);
}

int modify(int id, const std::string &mac, const std::string &ip) {
    const DhcpStaticItem item = binding(id, mac, ip, "modified");
    return ModifyDhcpStaticItem(&item);
}

Lines bindings() {
    return support::Database().rows("select id,mac,ip,mark from dhcpserverstaticbind order by id;");
}

TEST(SqldStaticBindings, with_an_address_that_is_taken_are_not_added) {
    const support::Service service;
    EXPECT_EQ(add("a", "1"), 0);
    EXPECT_EQ(add("b", "1"), 1);
    EXPECT_EQ(add("a", "2"), 2);
    EXPECT_EQ(add("a", "1"), 1);
    EXPECT_EQ(add("b", "2"), 0);
    EXPECT_EQ(bindings(), (Lines{"1|a|1|added", "2|b|2|added"}));
}

TEST(SqldStaticBindings, may_keep_their_own_addresses_and_take_free_ones) {
    const support::Service service;
    add("a", "1");
    add("b", "2");
    EXPECT_EQ(modify(1, "a", "1"), 0);
    EXPECT_EQ(bindings(), (Lines{"1|a|1|modified", "2|b|2|added"}));
    EXPECT_EQ(modify(2, "b", "3"), 0);
    EXPECT_EQ(modify(2, "c", "3"), 0);
    EXPECT_EQ(bindings(), (Lines{"1|a|1|modified", "2|c|3|modified"}));
}

TEST(SqldStaticBindings, may_not_take_the_addresses_of_others) {
    const support::Service service;
    add("a", "1");
    add("b", "2");
    EXPECT_EQ(modify(2, "b", "1"), 1);
    EXPECT_EQ(modify(2, "a", "2"), 2);
    EXPECT_EQ(modify(2, "a", "1"), 1);
    EXPECT_EQ(modify(3, "b", "3"), 2);
    EXPECT_EQ(bindings(), (Lines{"1|a|1|added", "2|b|2|added"}));
}

}  // namespace
