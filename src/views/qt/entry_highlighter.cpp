#include "views/qt/entry_highlighter.h"

#include "views/composer_runs.h"

namespace brimle {

void EntryHighlighter::setField(QQuickTextDocument* field) {
  field_ = field;
  setDocument(field ? field->textDocument() : nullptr);
  emit changed();
}

void EntryHighlighter::setToday(Today* today) {
  if (today_) today_->disconnect(this);
  today_ = today;
  // The language, the day: what is a date depends on both.
  if (today_) connect(today_, &Today::changed, this, &EntryHighlighter::rehighlight);
  rehighlight();
  emit changed();
}

void EntryHighlighter::setTheme(Theme* theme) {
  if (theme_) theme_->disconnect(this);
  theme_ = theme;
  if (theme_) connect(theme_, &Theme::changed, this, &EntryHighlighter::rehighlight);
  rehighlight();
  emit changed();
}

void EntryHighlighter::highlightBlock(const QString& text) {
  if (!today_ || !theme_) return;
  const std::u16string_view line(reinterpret_cast<const char16_t*>(text.utf16()),
                                 static_cast<std::size_t>(text.size()));
  for (const TextRun& run : composerRuns(line, today_->entryContext())) {
    QTextCharFormat format;
    format.setForeground(run.ink == TextRun::Ink::pencilRed ? theme_->pencilRed() : theme_->secondary());
    format.setFontItalic(run.italic);
    setFormat(static_cast<int>(run.start), static_cast<int>(run.length), format);
  }
}

}  // namespace brimle
