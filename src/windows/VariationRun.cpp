#include "windows/VariationRun.h"

#include <span>

namespace {

constexpr int kLookEvery = 30; // ms

} // namespace

CVariationRun::CVariationRun(QObject* parent) : QObject(parent)
{
    m_timer.setInterval(kLookEvery);
    connect(&m_timer, &QTimer::timeout, this, &CVariationRun::Look);
}

CVariationRun::~CVariationRun() { Stop(); }

void CVariationRun::Start(std::shared_ptr<const Variation> variation)
{
    Stop();
    m_variation = std::move(variation);
    m_table.assign(static_cast<std::size_t>(m_variation->RowCount()) * m_variation->ColumnCount(), 0.0);
    m_done = 0;
    m_thread = std::jthread([this](const std::stop_token& stop) {
        Variation::Reader reader(*m_variation);
        const std::size_t columns = m_variation->ColumnCount();
        for (std::int64_t row = 0; row < m_variation->RowCount() && !stop.stop_requested(); ++row) {
            reader.Read(row, std::span(m_table).subspan(static_cast<std::size_t>(row) * columns, columns));
            m_done.store(row + 1, std::memory_order_release);
        }
    });
    m_timer.start();
}

void CVariationRun::Stop()
{
    m_timer.stop();
    if (m_thread.joinable()) {
        m_thread.request_stop();
        m_thread.join(); // after the row that it is at
    }
}

void CVariationRun::Look()
{
    const std::int64_t done = m_done.load(std::memory_order_acquire);
    emit Progress(static_cast<int>(1000 * done / m_variation->RowCount()));
    if (done == m_variation->RowCount()) {
        Stop();
        emit Finished(m_table);
    }
}

#include "moc_VariationRun.cpp"
