// What an added behaviour rule does to the system log of its caller.
#include <gtest/gtest.h>
#include <syslog.h>

#include <memory>

#include "routerdb.h"
#include "support/fake_service.h"
#include "support/streams.h"

namespace {

/// What a message of the program's own looks like on standard error, where it asked for that.
std::string own_message() {
    return support::streams_of([] { syslog(LOG_ERR, "said"); }).error;
}

TEST(AddBehaviortem, takes_identity_and_options_from_the_callers_own_messages) {
    openlog("caller", LOG_PERROR, LOG_DAEMON);
    ASSERT_EQ(own_message(), "caller: said\n");
    {
        const support::FakeService service(support::reply_of(""));
        AddBehaviortem(std::make_unique<BehaviorItem>().get());
    }
    EXPECT_EQ(own_message(), "");
    openlog("caller", LOG_PERROR, LOG_DAEMON);
    EXPECT_EQ(own_message(), "caller: said\n");
    closelog();
}

}  // namespace
