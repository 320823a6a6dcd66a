#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// What can fail and is told in the status bar.
enum class StatusTopic : std::uint8_t { Save, Export, Print, Language, RescueCopies };

/// The message of the status bar, code page 1252: what the last command did, until the next one, and what
/// failed, until it succeeds. That copies cannot be kept is told until the next command. The newest stands
/// first, where a narrow window still shows it.
class StatusLine {
public:
    void BeginCommand();
    void Say(std::string text) { m_said = std::move(text); }
    void Succeed(StatusTopic topic, std::string text);
    void Fail(StatusTopic topic, std::string text);

    std::string Text() const;

private:
    struct Failure {
        StatusTopic topic;
        std::string text;
    };

    void Forget(StatusTopic topic);

    std::vector<Failure> m_failures; ///< the newest first
    std::string m_said;
};
