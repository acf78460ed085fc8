// Colours the entry language in a text field while it is typed. What is coloured how is composerRuns'
// business.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QQuickTextDocument>
#include <QSyntaxHighlighter>

#include "views/qt/theme.h"
#include "views/qt/today.h"

namespace brimle {

class EntryHighlighter : public QSyntaxHighlighter {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickTextDocument* field READ field WRITE setField NOTIFY changed)
  Q_PROPERTY(brimle::Today* today READ today WRITE setToday NOTIFY changed)
  Q_PROPERTY(brimle::Theme* theme READ theme WRITE setTheme NOTIFY changed)

 public:
  explicit EntryHighlighter(QObject* parent = nullptr) : QSyntaxHighlighter(parent) {}

  QQuickTextDocument* field() const { return field_; }
  Today* today() const { return today_; }
  Theme* theme() const { return theme_; }
  void setField(QQuickTextDocument* field);
  void setToday(Today* today);
  /// The colours; a change of them colours anew.
  void setTheme(Theme* theme);

 signals:
  void changed();

 protected:
  void highlightBlock(const QString& text) override;

 private:
  QQuickTextDocument* field_ = nullptr;
  Today* today_ = nullptr;
  Theme* theme_ = nullptr;
};

}  // namespace brimle
