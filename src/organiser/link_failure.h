// Why a conversation with the server ended before it was done, and what the codes mean.
#pragma once

#include <stdexcept>
#include <string>

namespace velmora {

/// The end of a conversation before its time. what() is one sentence for the user.
class LinkFailure : public std::runtime_error {
  public:
    enum class Kind {
        Refused,     ///< the server dropped the link and gave a reason
        Lost,        ///< the server asks for a new link: the old one broke, or its last word was lost
        NoLink,      ///< nobody answers
        Unexpected,  ///< the server answered something that makes no sense here
    };

    static LinkFailure refused(const std::string& reason);
    static LinkFailure lost();
    static LinkFailure noLink(const std::string& text);
    static LinkFailure unexpected(const std::string& text);

    LinkFailure(Kind kind, std::string reason, const std::string& text);

    Kind kind() const { return kind_; }
    /// The data of the server's DISCON frame; empty unless it refused.
    const std::string& reason() const { return reason_; }
    /// The first byte of the reason, 0 when there is none.
    int code() const;
    /// Whether the same conversation may well succeed on a new link: it was lost, or the server gave up
    /// because of bad frames.
    bool worthAnotherTry() const;

  private:
    Kind kind_;
    std::string reason_;
};

/// What a one-byte code of the server means, in words.
std::string meaningOfCode(int code);

}  // namespace velmora
