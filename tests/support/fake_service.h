// A SQL service that does what a test tells it, in a thread beside the test.
#pragma once

#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace support {

/// What becomes of the request.
enum class Hearing : std::uint8_t {
    whole,        // it is read
    header_only,  // its text is neither awaited nor read
    left_unread,  // it is awaited and not read: hanging up then resets the connection
    none,         // it is neither awaited nor read
};

/// What follows the last piece of the reply.
enum class Ending : std::uint8_t {
    hang_up,
    silence,  // until the client hangs up
};

/// One connection, as the service sees it.
struct Conversation {
    std::vector<std::string> pieces;  // of the reply; each one is sent when the client has taken those before it
    Hearing hearing = Hearing::whole;
    Ending ending = Ending::hang_up;
};

/// Listens on the service socket and leads the same conversation on every connection, one after the other, unless it is
/// given a reply for each.
class FakeService {
public:
    explicit FakeService(Conversation conversation);

    /// Answers with a reply in one piece.
    explicit FakeService(const std::string &reply);

    /// Answers each connection with a reply of its own, and those behind the last one with that one.
    explicit FakeService(const std::vector<std::string> &replies);
    FakeService(const FakeService &) = delete;
    FakeService &operator=(const FakeService &) = delete;
    ~FakeService();

    /// Waits until the service has ended its first connection.
    void wait_for_hang_up() const;

    /// Ends the service.
    /// @return what came in, one text per connection: header, statement, and whatever the client sent behind it
    std::vector<std::string> requests();

private:
    explicit FakeService(std::vector<Conversation> conversations);
    void serve();
    void lead_conversation(int peer, const Conversation &conversation);

    const std::vector<Conversation> conversations_;
    int listener_;
    int stop_;     // an event that ends the service
    int hung_up_;  // one that tells about the first connection
    std::vector<std::string> requests_;
    std::thread thread_;
};

/// A reply: two words, the size of the data, the data.
std::string reply_of(const std::string &data);

/// A request in readable form: "2 1 37 select * from filter_url order by Id;".
std::string readable(const std::string &request);

}  // namespace support
