#include "platform/qt/forms/Joint.h"

#include <QEvent>
#include <QTimer>

// Its target owns it, so that it is there for as long as events may come; the joint takes its handler away.
class Joint::EventWatch : public QObject {
 public:
  EventWatch(QObject* target, std::shared_ptr<Acts> acts, std::function<bool(QEvent&)> seen)
      : QObject(target),
        acts_(std::move(acts)),
        seen_(std::make_shared<std::function<bool(QEvent&)>>(std::move(seen))) {
    target->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (acts_->abandoned) return false;
    const auto seen = seen_;
    const Running running(acts_);
    return (*seen)(*event);
  }

 private:
  std::shared_ptr<Acts> acts_;
  std::shared_ptr<std::function<bool(QEvent&)>> seen_;
};

Joint::Running::~Running() {
  --acts_->running;
  if (acts_->running == 0 && acts_->abandoned && acts_->window) acts_->window->deleteLater();
}

Joint::Joint(QWidget* window) : acts_(std::make_shared<Acts>()), context_(std::make_unique<QObject>()) {
  acts_->window = window;
}

Joint::~Joint() {
  subscriptions_.clear();
  context_.reset();
  acts_->abandoned = true;
  if (!acts_->window) return;
  for (const auto& leave : leaving_) leave();
  acts_->window->hide();
  if (acts_->running == 0) acts_->window->deleteLater();
}

void Joint::OnEvents(QObject* target, std::function<bool(QEvent&)> seen) {
  new EventWatch(target, acts_, std::move(seen));
}

std::function<void()> Joint::WhileHere(std::function<void()> work) const {
  return [acts = acts_, work = std::move(work)] {
    if (acts->abandoned) return;
    const Running running(acts);
    work();
  };
}

void Joint::Later(std::function<void()> work, std::chrono::milliseconds delay) {
  QTimer::singleShot(delay, context_.get(), WhileHere(std::move(work)));
}
