#include "platform/desktop/qt_link_opener.h"

#include <QProcess>
#include <QUrl>

namespace brimle {

/// A detached process would copy the whole program's page tables first, which takes several milliseconds; so
/// it is an attached one that outlives the program all the same, as nobody destroys it before it has ended.
void QtLinkOpener::open(const std::string& link) {
  const QUrl url(QString::fromStdString(link));
  if (!url.isValid() || url.isRelative()) return;
  auto* process = new QProcess;
  process->setStandardInputFile(QProcess::nullDevice());
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
  QObject::connect(process, &QProcess::errorOccurred, process, &QObject::deleteLater);
  process->start(QStringLiteral("setsid"),
                 {QStringLiteral("xdg-open"), QString::fromLatin1(url.toEncoded())});
}

}  // namespace brimle
