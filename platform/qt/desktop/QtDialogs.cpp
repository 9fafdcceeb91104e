#include "platform/qt/desktop/QtDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "platform/qt/desktop/CopyBox.h"
#include "platform/qt/desktop/DialogPlace.h"

namespace {

// "Words|*.jpg;*.swf;" as Qt's dialog writes it: "Words (*.jpg *.swf)". The dialog matches without regard to case.
QStringList ShownFilters(const QString& filter) {
  const QStringList parts = filter.split('|');
  QStringList shown;
  for (int i = 0; i < parts.size(); i += 2) {
    QStringList patterns;
    for (const QString& pattern : parts.value(i + 1).split(';')) {
      if (!pattern.trimmed().isEmpty()) patterns.append(pattern.trimmed());
    }
    if (patterns.isEmpty()) patterns.append("*");
    shown.append(parts[i] + " (" + patterns.join(' ') + ')');
  }
  return shown;
}

}  // namespace

Answer QtDialogs::MsgBox(const std::string& text, const std::string& title, Buttons buttons) {
  QMessageBox box;
  box.setWindowTitle(QString::fromStdString(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(QString::fromStdString(text));
  const bool question = buttons == Buttons::kYesNo;
  const bool warning = buttons == Buttons::kOkWarning;
  box.setIcon(question ? QMessageBox::Question : warning ? QMessageBox::Warning : QMessageBox::Information);
  box.setStandardButtons(question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
  box.setDefaultButton(question ? QMessageBox::No : QMessageBox::Ok);
  box.setEscapeButton(question ? QMessageBox::No : QMessageBox::Ok);
  PlaceBeforeOperator(box);
  const int pressed = box.exec();
  if (!question) return Answer::kOk;
  return pressed == QMessageBox::Yes ? Answer::kYes : Answer::kNo;
}

std::string QtDialogs::InputBox(const std::string& prompt, const std::string& title) {
  QInputDialog box;
  box.setWindowTitle(QString::fromStdString(title));
  box.setLabelText(QString::fromStdString(prompt));
  box.setMinimumWidth(box.fontMetrics().averageCharWidth() * 60);
  PlaceBeforeOperator(box);
  return box.exec() == QDialog::Accepted ? box.textValue().toStdString() : "";
}

std::string QtDialogs::BrowseFolder(const std::string& title, const std::string& start) {
  QFileDialog box(nullptr, QString::fromStdString(title));
  // The desktop's own chooser would run in another process, under rules of its own.
  box.setOption(QFileDialog::DontUseNativeDialog);
  box.setFileMode(QFileDialog::Directory);
  box.setOption(QFileDialog::ShowDirsOnly);
  const QString folder = QString::fromStdString(start);
  box.setDirectory(!start.empty() && QDir(folder).exists() ? folder : QDir::homePath());
  PlaceBeforeOperator(box);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return "";
  return QDir(box.selectedFiles().constFirst()).absolutePath().toStdString();
}

std::string QtDialogs::OpenFile(const std::string& title, const std::string& filter) {
  QFileDialog box(nullptr, QString::fromStdString(title));
  box.setOption(QFileDialog::DontUseNativeDialog);
  box.setFileMode(QFileDialog::ExistingFile);
  box.setNameFilters(ShownFilters(QString::fromStdString(filter)));
  const QString folder = QString::fromStdString(lastFolder_);
  box.setDirectory(!folder.isEmpty() && QDir(folder).exists() ? folder : QDir::homePath());
  PlaceBeforeOperator(box);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return "";
  const QFileInfo chosen(box.selectedFiles().constFirst());
  if (!chosen.isFile()) return "";
  lastFolder_ = chosen.absolutePath().toStdString();
  return chosen.absoluteFilePath().toStdString();
}

CopyResult QtDialogs::CopyFile(const std::string& from, const std::string& to) { return CopyBehindBox(from, to); }
