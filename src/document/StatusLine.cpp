#include "document/StatusLine.h"

#include <utility>

void StatusLine::BeginCommand()
{
    m_said.clear();
    Forget(StatusTopic::RescueCopies);
}

void StatusLine::Succeed(StatusTopic topic, std::string text)
{
    Forget(topic);
    m_said = std::move(text);
}

void StatusLine::Fail(StatusTopic topic, std::string text)
{
    Forget(topic);
    m_failures.insert(m_failures.begin(), {topic, std::move(text)});
    m_said.clear();
}

void StatusLine::Forget(StatusTopic topic)
{
    std::erase_if(m_failures, [topic](const Failure& failure) { return failure.topic == topic; });
}

std::string StatusLine::Text() const
{
    std::string text = m_said;
    for (const Failure& failure : m_failures) {
        text += (text.empty() || failure.text.empty() ? "" : "  |  ") + failure.text;
    }
    return text;
}
