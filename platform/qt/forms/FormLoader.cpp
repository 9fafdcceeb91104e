#include "platform/qt/forms/FormLoader.h"

#include <QCoreApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>

#include "platform/qt/forms/DrawnView.h"
#include "platform/qt/forms/NameView.h"
#include "platform/qt/forms/RowView.h"
#include "platform/qt/forms/SeekSlider.h"
#include "platform/qt/forms/look/PathField.h"

namespace {

class Loader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* widget = Own(className, parent);
    if (widget == nullptr) return QUiLoader::createWidget(className, parent, name);
    widget->setObjectName(name);
    return widget;
  }

 private:
  static QWidget* Own(const QString& className, QWidget* parent) {
    if (className == "QTreeView") return new RowView(parent);
    if (className == "QListView") return new NameView(parent);
    if (className == "QListWidget") return new DrawnView(parent);
    if (className == "QLineEdit") return new PathField(parent);
    if (className == "QSlider") return new SeekSlider(parent);
    return nullptr;
  }
};

// A loader asks every plugin of Qt's form designer that is installed for its widgets, as soon as it is made. One of
// them brings a whole browser into the process; no form has a widget of any. So there is one loader, made where it
// finds none.
Loader& TheLoader() {
  static Loader& loader = []() -> Loader& {
    const QStringList paths = QCoreApplication::libraryPaths();
    QCoreApplication::setLibraryPaths({});
    auto* made = new Loader;  // never destroyed: the application may be gone before it
    QCoreApplication::setLibraryPaths(paths);
    return *made;
  }();
  return loader;
}

}  // namespace

std::unique_ptr<QWidget> LoadLayout(const QString& file) {
  QFile opened(file);
  if (!opened.open(QFile::ReadOnly)) {
    qWarning("There is no layout %s", qPrintable(file));
    return nullptr;
  }
  Loader& loader = TheLoader();
  std::unique_ptr<QWidget> window(loader.load(&opened));
  if (!window) qWarning("%s: %s", qPrintable(file), qPrintable(loader.errorString()));
  return window;
}

QString LayoutFile(const QString& formName) { return ":/forms/" + formName + ".ui"; }

QString ControlLayoutFile(const QString& controlName) { return ":/controls/" + controlName + ".ui"; }
