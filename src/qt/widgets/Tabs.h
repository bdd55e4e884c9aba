#pragma once

#include <QTabWidget>

namespace zarvil::qt {

/// Tabs that are measured when the size of their bar is first asked for. Qt measures the first one
/// as it comes, when the fonts may be on their way yet.
class Tabs final : public QTabWidget {
    Q_OBJECT

public:
    explicit Tabs(QWidget* parent = nullptr);
};

} // namespace zarvil::qt
