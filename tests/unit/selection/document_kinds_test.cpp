#include "selection/document_kinds.h"

#include <gtest/gtest.h>

TEST(DocumentKinds, NamesItsKindsAlwaysInTheSameOrder) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"*.SLDDRW", L"*.slddrw"},
        {L"*.SLDPRT ; *.SLDDRW", L"*.sldprt;*.slddrw"},
        {L"*.SLDDRW ; *.SLDPRT ; *.SLDASM", L"*.sldasm;*.sldprt;*.slddrw"},
        {L"xSldAsmslddrWx", L"*.sldasm;*.slddrw"},
        {L"*.SLDPR", L""},
        {L"", L""},
    };
    for (const auto& [typed, pattern] : cases)
        EXPECT_EQ(DocumentKinds(typed).pattern(), pattern) << typed;
}

TEST(DocumentKinds, AcceptsByWhatFollowsTheLastDot) {
    const DocumentKinds partsAndDrawings(L"*.SLDPRT ; *.SLDDRW");
    for (const wchar_t* name :
         {L"a.SLDPRT", L"a.sldprt", L"a.b.SldPrt", L"a.slddrw", L".SLDDRW", L"é b[1].SLDPRT"}) {
        EXPECT_TRUE(partsAndDrawings.accepts(name)) << name;
    }
    for (const wchar_t* name : {L"a.SLDASM", L"SLDPRT", L"a", L"a.", L"a.SLDPRT.bak", L"a.SLDPRT2",
                                L"a.SLDPRT ", L"a.XSLDPRT", L"a.\x0253LDPRT", L""}) {
        EXPECT_FALSE(partsAndDrawings.accepts(name)) << name;
    }
    EXPECT_TRUE(DocumentKinds(L"sldasm").accepts(L"a.sldasm"));
    EXPECT_FALSE(DocumentKinds(L"").accepts(L"a.SLDPRT"));
}
