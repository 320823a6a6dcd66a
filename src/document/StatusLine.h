#pragma once

#include <cstdint>
#include <map>
#include <string>

/// What can fail and is told in the status bar.
enum class StatusTopic : std::uint8_t { Save, Export, Print, Language, RescueCopies };

/// The message of the status bar, code page 1252: what the last command did, until the next one, and what
/// failed, until it succeeds. That copies cannot be kept is told
/// until the next command.
class StatusLine {
public:
    void BeginCommand();
    void Say(std::string text) { m_said = std::move(text); }
    void Succeed(StatusTopic topic, std::string text);
    void Fail(StatusTopic topic, std::string text);

    /// The failures, then what was said.
    std::string Text() const;

private:
    std::map<StatusTopic, std::string> m_failures;
    std::string m_said;
};
