#include "selection/imported_file.h"
#include "unit/unit_test.h"

/// Each line as its number and the document that it names; an exclamation mark for none.
static std::string linesOf(const char* text, bool isList) {
    std::string lines;
    (isList ? readListLines : readTable)(text, [&](const DocumentLine& line) {
        lines += std::to_string(line.number) + (line.namesDocument ? "=" : "!");
        if (line.namesDocument) lines += line.text;
        lines += '|';
    });
    return lines;
}

TEST(DocumentLines, NameTheFirstDocumentOfEachLine) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"C:\\a.SLDPRT\r\nb.sldasm\n\n \t\r c.SlDdRw ", "1=C:\\a.SLDPRT|2=b.sldasm|5=c.SlDdRw|",
         false},
        {"x;\"b;c.sldprt\";d.sldprt\r\n1\té.sldprt\t", "1=b;c.sldprt|2=é.sldprt|", false},
        {"\"dit \"\"le\"\" a.sldprt\"", "1=dit \"le\" a.sldprt|", false},
        {"1;\"deux\r\nlignes\";a.sldprt\r\nb.sldprt", "1!|2=a.sldprt|3=b.sldprt|", false},
        {"\"sans fin;b.sldprt\r\n3/4\";c.sldprt", "1=b.sldprt|2=c.sldprt|", false},
        {"N°;Etat;Document;Marqué le\r\n1;Fait;a.sldprt\r\nN°;Etat;Document;", "2=a.sldprt|3!|",
         false},
        {"Vu par\tNø\t\"Etat\"\tDocument\tRemarque\r\n", "", false},
        {";;\t;\r\n  \r\nnotes;a.sldprt.bak;sldprt", "3!|", false},
        {"'=a.sldprt\n'a.sldprt", "1==a.sldprt|2='a.sldprt|", false},
        {"0  c:\\a;b.SLDPRT\r\n12 b.sldprt\r\nété c.sldprt\r\n0\r\n   \r\n1  x.txt",
         "1=c:\\a;b.SLDPRT|2=b.sldprt|3=c.sldprt|4!|6=x.txt|", true},
    };
    for (const auto& [text, lines, isList] : cases) EXPECT_EQ(linesOf(text, isList), lines) << text;
}
