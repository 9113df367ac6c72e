#pragma once

#include <cluiedit/data/BackgroundLoad.h>

#include <QString>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace cluiedit {

/// Shows which file a BackgroundLoad reads, how far it is, and a button that cancels all of it. Hidden while nothing is
/// read.
class LoadingBar : public QWidget
{
    Q_OBJECT

public:
    /// \param load must outlive this widget
    explicit LoadingBar(BackgroundLoad& load, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showProgress(const QString& path, double fraction);
    void showText();

    const BackgroundLoad& m_load;
    QLabel* m_text = nullptr;
    QProgressBar* m_bar = nullptr;
    QString m_fullText;
};

} // namespace cluiedit
