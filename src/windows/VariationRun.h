#pragma once

#include "model/analysis/Variation.h"

#include <QObject>
#include <QTimer>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

/// Computes the table of a variation beside the window, which goes on meanwhile. A new start ends the run
/// before.
class CVariationRun : public QObject {
    Q_OBJECT

public:
    explicit CVariationRun(QObject* parent = nullptr);
    ~CVariationRun() override;

    /// The cells of row after row.
    using Table = std::vector<double>;

    void Start(std::shared_ptr<const Variation> variation);
    void Stop();
    bool IsRunning() const { return m_timer.isActive(); }

signals:
    /// Of 1000.
    void Progress(int permille);
    /// All rows are there.
    void Finished(const std::vector<double>& table);

private:
    void Look();

    std::shared_ptr<const Variation> m_variation;
    Table m_table;
    std::atomic<std::int64_t> m_done{0};
    QTimer m_timer;
    std::jthread m_thread; ///< last: it ends before what it writes to
};
