#include <gtest/gtest.h>

#include <QTest>
#include <filesystem>

#include "platform/qt/desktop/Tools.h"
#include "tests/platform/TemporaryFolder.h"

namespace {

class ToolsTest : public ::testing::Test {
 protected:
  ToolsTest() { std::filesystem::create_directories(folder.Path() + "/Tools"); }
  std::string Tool(const std::string& name) const { return folder.Path() + "/Tools/" + name; }
  void Make(const std::string& name, bool executable = true) const {
    WriteByOther(Tool(name), "#!/bin/sh\npwd > started-in\n");
    if (executable) std::filesystem::permissions(Tool(name), std::filesystem::perms::owner_all);
  }

  TemporaryFolder folder;
};

TEST_F(ToolsTest, AToolIsFoundWithItsEndingAndWithout) {
  Make("SWF Easy");
  EXPECT_EQ(ToolAt(Tool("SWF Easy.exe")), Tool("SWF Easy"));
  Make("SWF Easy.exe");
  EXPECT_EQ(ToolAt(Tool("SWF Easy.exe")), Tool("SWF Easy.exe"));
}

TEST_F(ToolsTest, ACopyFromADiskWithOtherLettersServes) {
  Make("swfeasy.EXE");
  EXPECT_EQ(ToolAt(folder.Path() + "/TOOLS/SwfEasy.exe"), Tool("swfeasy.EXE"));
}

TEST_F(ToolsTest, WhatIsMissingOrMayNotBeRunIsNoTool) {
  Make("plain.exe", false);
  std::filesystem::create_directories(Tool("folder.exe"));
  for (const char* name : {"plain.exe", "folder.exe", "missing.exe", "missing"}) EXPECT_EQ(ToolAt(Tool(name)), "");
  EXPECT_EQ(ToolAt("exe"), "");
  StartDetached(Tool("missing.exe"));
}

TEST_F(ToolsTest, AToolStartsInItsOwnFolder) {
  Make("SWF Easy");
  StartDetached(Tool("SWF Easy.exe"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return ReadByOther(Tool("started-in")) == folder.Path() + "/Tools\n"; }));
}

}  // namespace
