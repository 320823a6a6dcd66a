#include "report/SweepTable.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace {

constexpr std::int64_t kRowsInBlock = 2048;

/// Computes blocks of rows as text, with memory that one block leaves to the next.
class BlockMaker {
public:
    BlockMaker(const Variation& variation, const TableLayout& layout)
        : m_rows(variation.RowCount()), m_layout(layout), m_reader(variation),
          m_numbers(variation.ColumnCount()), m_cells(variation.ColumnCount())
    {}

    void Make(std::int64_t block, std::string& text)
    {
        text.clear();
        const std::int64_t end = std::min(m_rows, (block + 1) * kRowsInBlock);
        for (std::int64_t row = block * kRowsInBlock; row < end; ++row) {
            m_reader.Read(row, m_numbers);
            std::ranges::copy(m_numbers, m_cells.begin());
            m_layout.AppendRow(text, m_cells, row == 0);
        }
    }

private:
    std::int64_t m_rows;
    const TableLayout& m_layout;
    Variation::Reader m_reader;
    std::vector<double> m_numbers;
    std::vector<TableCell> m_cells;
};

std::int64_t BlockCount(const Variation& variation)
{
    return (variation.RowCount() + kRowsInBlock - 1) / kRowsInBlock;
}

/// Blocks that several threads make and one takes in their order. A thread waits before it runs further ahead
/// than there are slots.
class OrderedBlocks {
public:
    OrderedBlocks(const Variation& variation, const TableLayout& layout, std::size_t jobs)
        : m_variation(variation), m_layout(layout), m_count(BlockCount(variation)), m_slots(2 * jobs)
    {
        m_threads.reserve(jobs); // so that nothing but a thread itself can be refused below
        try {
            while (m_threads.size() < jobs) {
                m_threads.emplace_back([this] { Work(); });
            }
        } catch (const std::exception&) {
            // The system has no more threads to give, or no memory for one: those that there are do it.
        }
    }
    ~OrderedBlocks()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_next = m_count;
        }
        m_changed.notify_all();
    }
    OrderedBlocks(const OrderedBlocks&) = delete;
    OrderedBlocks& operator=(const OrderedBlocks&) = delete;

    bool HasThreads() const { return !m_threads.empty(); }

    /// The next block's text, swapped into `text`; throws what ended the work on any block.
    void Take(std::string& text)
    {
        std::unique_lock lock(m_mutex);
        Slot& slot = SlotOf(m_taken);
        m_changed.wait(lock, [&] { return slot.ready || m_failure; });
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
        slot.text.swap(text);
        slot.ready = false;
        ++m_taken;
        m_changed.notify_all();
    }

private:
    struct Slot {
        std::string text;
        bool ready = false;
    };

    Slot& SlotOf(std::int64_t block) { return m_slots[static_cast<std::size_t>(block) % m_slots.size()]; }
    bool MayBegin() const
    {
        return m_next >= m_count || m_next < m_taken + static_cast<std::int64_t>(m_slots.size());
    }

    void Work()
    {
        try {
            MakeBlocks();
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            m_failure = std::current_exception();
            m_next = m_count; // the other threads end, too
            m_changed.notify_all();
        }
    }

    void MakeBlocks()
    {
        BlockMaker maker(m_variation, m_layout);
        std::string text;
        std::unique_lock lock(m_mutex);
        for (;;) {
            m_changed.wait(lock, [this] { return MayBegin(); });
            if (m_next >= m_count) {
                return;
            }
            const std::int64_t block = m_next++;
            lock.unlock();
            maker.Make(block, text);
            lock.lock();
            Slot& slot = SlotOf(block);
            slot.text.swap(text);
            slot.ready = true;
            m_changed.notify_all();
        }
    }

    const Variation& m_variation;
    const TableLayout& m_layout;
    const std::int64_t m_count;
    std::vector<Slot> m_slots;
    std::int64_t m_next = 0;  ///< the block that nobody has begun
    std::int64_t m_taken = 0; ///< blocks that are out
    std::exception_ptr m_failure;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<std::jthread> m_threads; ///< last: they end before what they use does
};

bool WriteOnOneThread(const Variation& variation, const TableLayout& layout, const TableSink& sink)
{
    BlockMaker maker(variation, layout);
    std::string text;
    for (std::int64_t block = 0; block < BlockCount(variation); ++block) {
        maker.Make(block, text);
        if (!sink(text)) {
            return false;
        }
    }
    return true;
}

bool WriteRows(const Variation& variation, const TableLayout& layout, std::size_t jobs, const TableSink& sink)
{
    if (jobs < 2) {
        return WriteOnOneThread(variation, layout, sink);
    }
    OrderedBlocks blocks(variation, layout, jobs);
    if (!blocks.HasThreads()) {
        return WriteOnOneThread(variation, layout, sink);
    }
    std::string text;
    for (std::int64_t block = 0; block < BlockCount(variation); ++block) {
        blocks.Take(text);
        if (!sink(text)) {
            return false;
        }
    }
    return true;
}

} // namespace

void WriteSweep(const Variation& variation, const TableLayout& layout, int jobs, const TableSink& sink)
{
    std::string edge;
    layout.AppendHead(edge);
    const auto useful = static_cast<std::size_t>(std::min<std::int64_t>(jobs, BlockCount(variation)));
    if (sink(edge) && WriteRows(variation, layout, useful, sink)) {
        edge.clear();
        layout.AppendFoot(edge, false);
        sink(edge);
    }
}
