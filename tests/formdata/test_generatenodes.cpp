#include "formdata/mdXMLControl.h"
#include "formdata/mdXMLGenerateNodes.h"
#include "tests/support/mdTestPrinting.h"

#include <gtest/gtest.h>

namespace {

const QString Template
    = QStringLiteral("<thing>\r\n\t<one>1</one><two/><three><inner>3</inner></three><four>4</four>\r\n</thing>");

QString generated(const char *xml)
{
    const clsXMLElement element = XMLLoadElement(QString::fromLatin1(xml), "thing");
    GenerateNodes(element.node(), Template);
    return XMLElementOutput(element.node());
}

} // namespace

TEST(GenerateNodes, ChangesNothingOnACompleteElement)
{
    const char *complete = "<thing><one>x</one><two>y</two><three/><four/></thing>";
    EXPECT_EQ(QString::fromLatin1(complete), generated(complete));
}

TEST(GenerateNodes, GivesAnEmptyElementAllChildrenWithTheirDefaults)
{
    EXPECT_EQ(QStringLiteral("<thing><one>1</one><two/><three><inner>3</inner></three><four>4</four></thing>"),
        generated("<thing/>"));
}

TEST(GenerateNodes, AppendsWhatIsMissingAtTheEndInTheTemplatesOrder)
{
    EXPECT_EQ(QStringLiteral("<thing><three>x</three><one>1</one><two/><four>4</four></thing>"),
        generated("<thing><three>x</three></thing>"));
}

TEST(GenerateNodes, NeitherReordersNorRemovesNorConverts)
{
    const char *odd
        = "<thing><four>d</four><new>?</new><three>c</three><!--n--><two>b</two><one>a</one><one>aa</one></thing>";
    EXPECT_EQ(QString::fromLatin1(odd), generated(odd));
}

TEST(GenerateNodes, FindsChildrenWhateverStandsBetweenThem)
{
    EXPECT_EQ(QStringLiteral(
                  "<thing><new/><one>a</one><new/><!--n--><four>d</four><two/><three><inner>3</inner></three></thing>"),
        generated("<thing><new/><one>a</one><new/><!--n--><four>d</four></thing>"));
}

TEST(GenerateNodes, WorksOneLevelDeep)
{
    EXPECT_EQ(QStringLiteral("<thing><three/><one>1</one><two/><four>4</four></thing>"),
        generated("<thing><three/></thing>"));
}

TEST(GenerateNodes, TellsUpperFromLowerCase)
{
    EXPECT_EQ(QStringLiteral("<thing><ONE/><one>1</one><two/><three><inner>3</inner></three><four>4</four></thing>"),
        generated("<thing><ONE/></thing>"));
}

TEST(GenerateNodes, LeavesNothingAndATemplateThatIsNoneAlone)
{
    GenerateNodes(pugi::xml_node(), Template);
    const clsXMLElement element = XMLLoadElement(QStringLiteral("<thing/>"), "thing");
    GenerateNodes(element.node(), QStringLiteral("no template"));
    EXPECT_EQ(QStringLiteral("<thing/>"), XMLElementOutput(element.node()));
}
