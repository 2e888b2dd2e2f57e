// What an added behaviour rule does to the system log of its caller, where it does.
#include <gtest/gtest.h>
#include <syslog.h>

#include <memory>

#include "routerdb.h"
#include "support/fake_service.h"
#include "support/profile.h"
#include "support/streams.h"

namespace {

/// What a message of the program's own looks like on standard error, where it asked for that.
std::string own_message() {
    return support::streams_of([] { syslog(LOG_ERR, "said"); }).error;
}

TEST(AddBehaviortem, takes_identity_and_options_from_the_callers_own_messages_or_leaves_them) {
    openlog("caller", LOG_PERROR, LOG_DAEMON);
    ASSERT_EQ(own_message(), "caller: said\n");
    const auto said = support::streams_of([] {
        const support::FakeService service(support::reply_of(""));
        AddBehaviortem(std::make_unique<BehaviorItem>().get());
    });
    constexpr bool leaves = support::build_profile.leaves_program_state;
    EXPECT_EQ(said.error, leaves ? "caller: pinfo->behavior_info:\n" : "");
    EXPECT_EQ(own_message(), leaves ? "caller: said\n" : "");
    openlog("caller", LOG_PERROR, LOG_DAEMON);
    EXPECT_EQ(own_message(), "caller: said\n");
    closelog();
}

}  // namespace
