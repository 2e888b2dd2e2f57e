// Commands for the shell.
#include "core/shell.h"

#include <gtest/gtest.h>

#include "support/recorder.h"

namespace {

using routerdb::command_size;
using routerdb::run_in_shell;
using support::Recorder;
using Lines = std::vector<std::string>;

TEST(RunInShell, runs_the_formatted_command) {
    Recorder recorder;
    run_in_shell(command_size, "exit %d; %s", 3, "'");
    EXPECT_EQ(recorder.calls(), Lines{"system exit 3; '"});
}

TEST(RunInShell, runs_a_command_that_just_fits) {
    Recorder recorder;
    recorder.keep_commands_from_running();
    const std::string longest(255, 'x');
    run_in_shell(command_size, "%s", longest.c_str());
    run_in_shell(4, "%s", "abc");
    EXPECT_EQ(recorder.calls(), (Lines{"system " + longest, "system abc"}));
}

TEST(RunInShell, does_not_run_a_command_that_would_be_cut) {
    Recorder recorder;
    run_in_shell(command_size, "%s", std::string(256, 'x').c_str());
    run_in_shell(4, "%s", "abcd");
    EXPECT_EQ(recorder.calls(), Lines());
}

}  // namespace
