#pragma once

#include "scripts/ScriptProgress.h"

#include <QObject>
#include <QPointer>

class QDialog;
class QLabel;
class QPushButton;
class QWidget;

namespace zarvil::qt {

/// Shows what runs in a small window, and drops what the user does with any other window while a
/// script runs: clicks and keys that had to wait would do later what nobody expects any more.
class ScriptWindow final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive this.
    ScriptWindow(ScriptProgress& progress, QWidget& pane);
    ~ScriptWindow() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void make();
    void block(bool running);
    void show(bool shown);
    [[nodiscard]] bool isOwn(const QObject& receiver) const;

    ScriptProgress& progress_;
    QWidget& pane_;
    QPointer<QDialog> window_; ///< made when it is first shown
    QLabel* text_ = nullptr;
    QPushButton* stop_ = nullptr;
    Subscription running_;
    Subscription shown_;
    Subscription stopping_;
};

} // namespace zarvil::qt
