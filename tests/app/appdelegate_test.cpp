// The menu reaches the window only through mainVC. That each entry calls its own operation shows
// in the transcripts, which send every other entry through this delegate; here the start before
// the window registers, and the entry they do not send.

#include "app/appdelegate.h"
#include "window/fenstertest.h"

namespace tabulon {
namespace {

class AppDelegateTest : public FensterTest {};

TEST_F(AppDelegateTest, NothingHappensBeforeTheWindowRegisters) {
    AppDelegate delegate;
    vc.zelle(0, 0).text = "7";
    vc.notizF = "alt";
    for (const auto name : AppDelegate::menueNamen()) {
        EXPECT_TRUE(delegate.menueAktion(name)) << name;
    }
    EXPECT_FALSE(delegate.menueAktion("Tableau löschen"));
    EXPECT_EQ(vc.zelle(0, 0).text, "7");
    EXPECT_EQ(vc.notizF, "alt");
    EXPECT_TRUE(plattform.ereignisse.empty());

    vc.viewDidLoad([&](ViewController& v) { delegate.mainVC = &v; });
    ASSERT_EQ(delegate.mainVC, &vc);
    EXPECT_EQ(vc.infoUndHilfeBTitel, "Info und Hilfe");
    delegate.menueAktion("TableauLöschen");
    EXPECT_EQ(vc.zelle(0, 0).text, "");
    EXPECT_EQ(vc.notizF, "");
}

} // namespace
} // namespace tabulon
