#include "document/StatusLine.h"

#include <utility>

void StatusLine::BeginCommand()
{
    m_said.clear();
    m_failures.erase(StatusTopic::RescueCopies);
}

void StatusLine::Succeed(StatusTopic topic, std::string text)
{
    m_failures.erase(topic);
    m_said = std::move(text);
}

void StatusLine::Fail(StatusTopic topic, std::string text)
{
    m_failures[topic] = std::move(text);
    m_said.clear();
}

std::string StatusLine::Text() const
{
    std::string text;
    const auto add = [&text](const std::string& piece) {
        text += text.empty() || piece.empty() ? piece : "  |  " + piece;
    };
    for (const auto& [topic, failure] : m_failures) {
        add(failure);
    }
    add(m_said);
    return text;
}
