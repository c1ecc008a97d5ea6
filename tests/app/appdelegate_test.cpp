// The menu reaches the window only through mainVC. That each entry calls its own operation shows
// in the transcripts, which send every other entry through this delegate; here the start before
// the window registers, the entry they do not send, and the delegate's named members.

#include "app/appdelegate.h"
#include "window/aktionen.h"
#include "window/fenstertest.h"

#include <set>

namespace tabulon {
namespace {

class AppDelegateTest : public FensterTest {};

TEST_F(AppDelegateTest, NothingHappensBeforeTheWindowRegisters) {
    AppDelegate delegate;
    vc.zelle(0, 0).text = "7";
    vc.notizF = "alt";
    for (const Menueaktion& aktion : menueaktionen()) {
        EXPECT_TRUE(delegate.menueAktion(aktion.name)) << aktion.name;
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

// Each named member fires an action of the table (a misspelt name would do nothing), and
// together they cover the whole table.
TEST_F(AppDelegateTest, NamedMembersCoverTheTable) {
    AppDelegate d;
    const bool gefeuert[] = {d.TableauLöschen(),
                             d.nMalAuswerten(),
                             d.termAuswerten(),
                             d.MatrixlisteLoeschen(),
                             d.Invertiere(),
                             d.Transponiere(),
                             d.Orthonormiere(),
                             d.Gausse(),
                             d.loescheName(),
                             d.charPolUndEwe(),
                             d.gramsche(),
                             d.speichereEinzelmatrix(),
                             d.texAusgabeAlleMatrizen(),
                             d.loescheGanzeListe(),
                             d.genZufallsmatrix(),
                             d.genErzSysVomKern(),
                             d.genEinheitsmatrix(),
                             d.zeigeGanzeListe(),
                             d.druckeMatrixN(),
                             d.neustartM(),
                             d.ladenM(),
                             d.speichernM(),
                             d.protoSpeichern(),
                             d.exaktGauss(),
                             d.exaktLGS(),
                             d.exaktKern(),
                             d.exaktInverse(),
                             d.exaktDeterminante(),
                             d.exaktEigen(),
                             d.exaktTexAusgabe(),
                             d.exaktUeben()};
    EXPECT_EQ(std::size(gefeuert), menueaktionen().size());
    for (std::size_t i = 0; i < std::size(gefeuert); ++i) {
        EXPECT_TRUE(gefeuert[i]) << i;
    }
}

// The Qt menu decides by name whether an entry is a menu action or a window action, and the
// driver and the window look fields up by name: no name may stand in two tables or twice in one.
TEST(Aktionstabellen, NamesAreUnique) {
    std::set<std::string_view> namen;
    std::size_t anzahl = 0;
    for (const auto& a : fensteraktionen()) {
        namen.insert(a.name);
        ++anzahl;
    }
    for (const auto& f : textfelder()) {
        namen.insert(f.name);
        ++anzahl;
    }
    for (const auto& m : menueaktionen()) {
        namen.insert(m.name);
        ++anzahl;
    }
    EXPECT_EQ(namen.size(), anzahl);
}

} // namespace
} // namespace tabulon
