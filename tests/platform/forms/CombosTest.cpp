#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>

#include "ads/frmVideoAdSett.h"
#include "tests/platform/forms/FormTest.h"

namespace {

// A field with a list, into which can be typed: the minutes between breaks, whose every choice starts a countdown anew.
class CombosTest : public FormTest {
 protected:
  CombosTest() {
    station.stores.SettingsFile();
    for (const auto& [key, value] : {std::pair("AdTime", "5"), std::pair("AdTimeCount", "30")}) {
      station.stores.SettingsIni.WriteValue("VideoAd", key, value);
    }
    Get<frmVideoAdSett>().Show();
    Settle();
  }
  QComboBox& Combo() { return Shown<QComboBox>(Get<frmVideoAdSett>().CmbBreak); }
  void Enter() { Send(QEvent::FocusIn); }
  void Leave() { Send(QEvent::FocusOut); }
  void Send(QEvent::Type type) {
    QFocusEvent event(type, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&Combo(), &event);
  }
  void Type(const QString& text) {
    Combo().lineEdit()->selectAll();
    QTest::keyClicks(Combo().lineEdit(), text);
  }
};

TEST_F(CombosTest, AFieldThatIsEnteredAndLeftIsNoChoice) {
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(Combo().currentText(), "5");
    Enter();
    Leave();
    EXPECT_EQ(Get<frmVideoAdSett>().AdTimeCount, 30);
    Get<frmVideoAdSett>().LoadSett();
  }
}

TEST_F(CombosTest, ATextThatTheListDoesNotHaveStandsInTheFieldAndIsNoChoice) {
  Get<frmVideoAdSett>().CmbBreak.Text = "5000";
  EXPECT_EQ(Combo().currentText(), "5000");
  Enter();
  Leave();
  EXPECT_EQ(Combo().currentText(), "5000");
  EXPECT_EQ(Get<frmVideoAdSett>().AdTimeCount, 30);
}

TEST_F(CombosTest, WhatIsTypedIsChosenByTheEnterKeyOrByLeaving) {
  Enter();
  Type("71");
  EXPECT_EQ(Get<frmVideoAdSett>().AdTime, 5);
  QTest::keyClick(Combo().lineEdit(), Qt::Key_Return);
  EXPECT_EQ(Get<frmVideoAdSett>().AdTime, 71);
  Type("72");
  Leave();
  EXPECT_EQ(Get<frmVideoAdSett>().AdTime, 72);
}

}  // namespace
