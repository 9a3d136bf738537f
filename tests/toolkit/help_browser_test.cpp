// The help window with its real view: pages of the folder and nothing else, the history, links.
#include <QDesktopServices>
#include <QDir>
#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>

#include "../support/temporary_folder.h"
#include "desktop.h"
#include "frame/window.h"

namespace korvane::testing {
namespace {

/// Takes the addresses that are given to the system to open.
class Launches : public QObject {
  Q_OBJECT
 public:
  Launches() { QDesktopServices::setUrlHandler("https", this, "Take"); }
  ~Launches() override { QDesktopServices::unsetUrlHandler("https"); }

  QStringList taken;

 public slots:
  void Take(const QUrl& url) { taken << url.toString(); }
};

constexpr const char* kMissing = "There is no such page";

class HelpWindow : public ::testing::Test {
 protected:
  HelpWindow() {
    QDir(ToQt(folder.Path())).mkpath("help/more");
    folder.Write("secret.html", "<p>Secret</p>");
    folder.Write("help/style.css", "p { color: #ff0000 }");
    folder.Write("help/contents.html",
                 "<head><link rel=\"stylesheet\" href=\"style.css\"></head><h1>Contents</h1>"
                 "<p>Read <a href='one.html'>One</a> <a href='more/two.html#end'>Two</a>"
                 "<a href='https://www.korvane.example/news.html'>News</a></p>");
    folder.Write("help/one.html", "<h1>One</h1><p><a href='contents.html'>Back</a></p>");
    std::string tall = "<h1>Two</h1>";
    for (int i = 0; i < 200; ++i) tall += "<p>line</p>";
    folder.Write("help/more/two.html", tall + "<p><a name='end'>End</a></p>");
  }

  void Open(const std::string& topic = "contents.html") {
    desktop.session.HelpTopic = topic;
    desktop.session.Handle([&] { desktop.session.ShowHelp(); });
    Settle();
  }

  const Window& Help() { return *desktop.session.Find("Help"); }
  QTextBrowser& Page() { return desktop.Get<QTextBrowser>("Help", "WebBrowser1"); }
  std::string Text() { return FromQt(Page().toPlainText()); }
  std::string Address() { return dynamic_cast<TextField&>(*Help().Find("Text1")).Text(); }
  std::string InHelp(const std::string& page) { return folder.File("help/" + page); }

  void Go(const std::string& address) {
    desktop.person.Types(dynamic_cast<FocusControl&>(*Help().Find("Text1")), address);
    desktop.person.Presses(*desktop.session.Find("Help"), Key::Enter);
    Settle();
  }
  void Click(const char* name) {
    desktop.person.Clicks(*Help().Find(name));
    Settle();
  }
  /// From the keyboard: Tab to the link of that number, counted from 1, and Enter.
  void Follow(int link) {
    Page().setFocus();
    for (int i = 0; i < link; ++i) Press(Page(), Qt::Key_Tab);
    Press(Page(), Qt::Key_Return);
  }

  TemporaryFolder folder;
  Desktop desktop{folder.Path()};
};

TEST_F(HelpWindow, ShowsAPageInItsStyle) {
  Open();
  EXPECT_EQ(Text().substr(0, 8), "Contents");
  EXPECT_EQ(Address(), InHelp("contents.html"));
  EXPECT_EQ(desktop.View("Help").windowTitle(), "Korvane Help");
  EXPECT_EQ(desktop.Get<QLineEdit>("Help", "Text1").text(), ToQt(InHelp("contents.html")));
  QTextCursor paragraph(Page().document()->findBlockByNumber(1));
  paragraph.movePosition(QTextCursor::NextCharacter);
  EXPECT_EQ(paragraph.charFormat().foreground().color(), QColor(255, 0, 0));
  EXPECT_FALSE(Page().accessibleName().isEmpty());
}

TEST_F(HelpWindow, ShowsPicturesThatSuitTheGround) {
  const auto paint = [this](const char* file, int width) {
    QImage picture(width, 10, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    ASSERT_TRUE(picture.save(ToQt(InHelp(file))));
  };
  QDir(ToQt(folder.Path())).mkpath("help/dark");
  paint("both.png", 10);
  paint("dark/both.png", 20);
  paint("one.png", 30);
  folder.Write("help/pictures.html", "<img src='both.png'><img src='one.png'>");
  const auto widths = [this](Qt::GlobalColor ground) {
    Open("pictures.html");
    QPalette palette = Page().palette();
    palette.setColor(QPalette::Base, ground);
    Page().setPalette(palette);
    Page().reload();
    const auto width = [this](const char* file) {
      const QUrl url = Page().source().resolved(QUrl(file));
      return Page().document()->resource(QTextDocument::ImageResource, url).value<QImage>().width();
    };
    return std::pair{width("both.png"), width("one.png")};
  };
  EXPECT_EQ(widths(Qt::white), std::pair(10, 30));
  EXPECT_EQ(widths(Qt::black), std::pair(20, 30));
}

TEST_F(HelpWindow, ShowsNothingButPagesOfItsFolder) {
  ASSERT_TRUE(QFile::link(ToQt(folder.File("secret.html")), ToQt(InHelp("link.html"))));
  ASSERT_TRUE(QFile::link(ToQt(folder.Path()), ToQt(InHelp("out"))));
  ASSERT_TRUE(QFile::link(ToQt(InHelp("one.html")), ToQt(InHelp("inside.html"))));
  struct Case {
    std::string address;
    const char* text;
  };
  const Case kCases[] = {
      {InHelp("one.html"), "One"},
      {"one.html", "One"},
      {"more/two.html", "Two"},
      {InHelp("more/../one.html"), "One"},
      {"file://" + InHelp("one.html"), "One"},
      {InHelp("inside.html"), "One"},
      {InHelp("none.html"), kMissing},
      {InHelp("ONE.html"), kMissing},
      {InHelp("../secret.html"), kMissing},
      {"../secret.html", kMissing},
      {"more/../../secret.html", kMissing},
      {folder.File("secret.html"), kMissing},
      {"file://" + folder.File("secret.html"), kMissing},
      {"link.html", kMissing},
      {"out/secret.html", kMissing},
      {InHelp("more"), kMissing},
      {InHelp(""), kMissing},
      {"", kMissing},
      {"http://127.0.0.1:9/one.html", kMissing},
      {"https://www.korvane.example.evil/", kMissing},
      {"qrc:/korvane.svg", kMissing},
      {"data:text/html,Embedded", kMissing},
      {"javascript:alert(1)", kMissing},
      {std::string(5000, 'x'), kMissing},
      {"<b>%1</b>&amp;%2.html", kMissing},
  };
  Open();
  for (const Case& test : kCases) {
    Go("more/two.html");
    Go(test.address);
    EXPECT_EQ(Text().substr(0, std::string(test.text).size()), test.text) << test.address;
    EXPECT_EQ(Text().find("Secret"), std::string::npos) << test.address;
    EXPECT_EQ(Address(), test.address);
    EXPECT_EQ(desktop.View("Help").windowTitle(), "Korvane Help");
  }
  // The page that is not there is told by its name, as it stands.
  Go("<b>%1</b>&amp;%2.html");
  EXPECT_NE(Text().find("<b>%1</b>&amp;%2.html"), std::string::npos) << Text();
  // From there a link leads back.
  Follow(1);
  EXPECT_EQ(Text().substr(0, 8), "Contents");
}

TEST_F(HelpWindow, LivesWithoutItsFolder) {
  ASSERT_TRUE(QDir(ToQt(folder.File("help"))).removeRecursively());
  Open();
  EXPECT_EQ(Text().substr(0, 21), kMissing);
  EXPECT_EQ(desktop.View("Help").windowTitle(), "Korvane Help");
  Follow(1);
  Click("cmdRefresh");
  EXPECT_EQ(Text().substr(0, 21), kMissing);
}

TEST_F(HelpWindow, GoesBackAndForward) {
  Open();
  Follow(1);
  EXPECT_EQ(Text().substr(0, 3), "One");
  EXPECT_EQ(Address(), InHelp("one.html"));
  Go("more/two.html");
  struct Case {
    const char* command;
    const char* text;
  };
  constexpr Case kCases[] = {
      {"cmdForward", "Two"},   {"cmdBack", "One"},      {"cmdRefresh", "One"},
      {"cmdBack", "Contents"}, {"cmdBack", "Contents"}, {"cmdForward", "One"},
      {"cmdForward", "Two"},   {"cmdForward", "Two"},
  };
  for (const Case& test : kCases) {
    Click(test.command);
    EXPECT_EQ(Text().substr(0, std::string(test.text).size()), test.text) << test.command;
  }
  // A page that changed meanwhile is read anew.
  folder.Write("help/more/two.html", "Changed");
  Click("cmdRefresh");
  EXPECT_EQ(Text(), "Changed");
  // The view has no history of its own beside the window's.
  Page().setFocus();
  Press(Page(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Text(), "Changed");
  // A new page ends what lay ahead.
  Click("cmdBack");
  Go("contents.html");
  Click("cmdForward");
  EXPECT_EQ(Text().substr(0, 8), "Contents");
}

TEST_F(HelpWindow, ComesBackToThePageOfTheWindowInUse) {
  Open();
  Go("one.html");
  desktop.session.HelpTopic = "more/two.html";  // as a calculator does
  Window& help = *desktop.session.Find("Help");
  desktop.Shows("Splash");
  desktop.person.Activates(help);
  Settle();
  EXPECT_EQ(Text().substr(0, 3), "Two");
  EXPECT_EQ(Address(), InHelp("more/two.html"));
  // F1 makes a new window with a new history.
  Open("one.html");
  EXPECT_EQ(Text().substr(0, 3), "One");
  Click("cmdBack");
  EXPECT_EQ(Text().substr(0, 3), "One");
}

TEST_F(HelpWindow, FollowsLinksToTheirPlaceOnThePage) {
  Open();
  Follow(2);
  EXPECT_EQ(Text().substr(0, 3), "Two");
  EXPECT_GT(Page().verticalScrollBar()->value(), 0);
  Click("cmdBack");
  Click("cmdForward");
  EXPECT_EQ(Text().substr(0, 3), "Two");
}

TEST_F(HelpWindow, LeavesTheProductsWebServerToTheSystem) {
  Launches launches;
  Open();
  Follow(3);
  EXPECT_EQ(launches.taken, QStringList{"https://www.korvane.example/news.html"});
  EXPECT_EQ(Text().substr(0, 8), "Contents");
  Go("https://www.korvane.example/download.html");
  EXPECT_EQ(launches.taken.size(), 2);
  EXPECT_EQ(Text().substr(0, 8), "Contents");
}

}  // namespace
}  // namespace korvane::testing

#include "help_browser_test.moc"
