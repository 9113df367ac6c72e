#include <cluiedit/data/BdfFile.h>

#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <clocale>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::NanSensitiveDoubleEq;

namespace cluiedit {

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

const uiconfig::Catalogue& catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

cl::datastorage::DataArrayIdentifier array(const QString& name)
{
    return {name, cl::batterydata::ClConfigDataArray::PotentiostatMeasure()};
}

class BdfFileTest : public testing::Test
{
protected:
    QString write(const QByteArray& text)
    {
        QFile file(directory.filePath(u"cell.bdf.csv"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        return file.fileName();
    }

    BdfFile read(const QByteArray& text) { return readBdf(write(text), catalogue()); }

    /// The error, which a text must give, and nothing else.
    std::string errorOf(const QByteArray& text)
    {
        const BdfFile file = read(text);
        EXPECT_FALSE(file.measurement.has_value());
        EXPECT_FALSE(file.wasCancelled);
        return file.error.toStdString();
    }

    std::vector<double> values(const BdfFile& file, const QString& name)
    {
        EXPECT_EQ(file.error, QString());
        const auto* found = file.measurement ? file.measurement->values(array(name)) : nullptr;
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found == nullptr ? std::vector<double>() : *found;
    }

    QTemporaryDir directory;
};

TEST_F(BdfFileTest, MachineNamesAndNamesAreRead)
{
    const BdfFile file = read("test_time_second,Voltage / V\n0,3.5\n1.5,-2e-3\n");
    EXPECT_THAT(values(file, u"Test Time / s"_s), ElementsAre(0, 1.5));
    EXPECT_THAT(values(file, u"Voltage / V"_s), ElementsAre(3.5, -0.002));
    EXPECT_EQ(file.measurement->name(), u"cell.bdf.csv");
    EXPECT_EQ(file.measurement->values(array(u"Current / A"_s)), nullptr);
}

TEST_F(BdfFileTest, HeadersMayHaveBlanksAndAnotherCase)
{
    const BdfFile file = read(" Test_Time_Second , \" VOLTAGE / v \" \n1,2\n");
    EXPECT_THAT(values(file, u"Test Time / s"_s), ElementsAre(1));
    EXPECT_THAT(values(file, u"Voltage / V"_s), ElementsAre(2));
    EXPECT_TRUE(file.unknownColumns.isEmpty());
}

TEST_F(BdfFileTest, UnknownColumnsAndTextsAreNamedAndNotRead)
{
    const BdfFile file = read("my_index,voltage_volt,step_type,,Step ID\n"
                              "x,1,\"rest, then\nmore\",y,a\n3,2,,,\n");
    EXPECT_THAT(values(file, u"Voltage / V"_s), ElementsAre(1, 2));
    EXPECT_EQ(file.unknownColumns, QStringList({u"my_index"_s, u"column 4, without a name"_s}));
    EXPECT_EQ(file.skippedColumns, QStringList({u"step_type"_s, u"Step ID"_s}));
}

TEST_F(BdfFileTest, OtherDelimitersMarksAndLineEndsAreRead)
{
    for (const char* delimiter : {",", ";", "\t"}) {
        for (const char* lineEnd : {"\n", "\r\n", "\r"}) {
            for (const char* mark : {"", "\xEF\xBB\xBF"}) {
                const QByteArray text = QByteArray(mark) + "voltage_volt|current_ampere~~1|2~~~|~5|6";
                const BdfFile file = read(QByteArray(text).replace("|", delimiter).replace("~", lineEnd));
                // NaN, as the cells of the row are empty
                EXPECT_THAT(values(file, u"Voltage / V"_s),
                            testing::Pointwise(NanSensitiveDoubleEq(), {1.0, NaN, 5.0}));
                EXPECT_THAT(values(file, u"Current / A"_s),
                            testing::Pointwise(NanSensitiveDoubleEq(), {2.0, NaN, 6.0}));
            }
        }
    }
}

TEST_F(BdfFileTest, MissingInfiniteAndQuotedNumbersAreRead)
{
    const BdfFile file = read("voltage_volt,current_ampere,voltage_overload\n"
                              ",NaN,true\n\"1.5\",-inf,FALSE\n+2,  7  ,1\nnan,Infinity,\n");
    EXPECT_THAT(values(file, u"Voltage / V"_s), testing::Pointwise(NanSensitiveDoubleEq(), {NaN, 1.5, 2.0, NaN}));
    EXPECT_THAT(values(file, u"Current / A"_s),
                testing::Pointwise(NanSensitiveDoubleEq(), {NaN, -HUGE_VAL, 7.0, HUGE_VAL}));
    EXPECT_THAT(values(file, u"Voltage Overload"_s), testing::Pointwise(NanSensitiveDoubleEq(), {1.0, 0.0, 1.0, NaN}));
}

TEST_F(BdfFileTest, TheLocaleMakesNoDifference)
{
    QLocale::setDefault(QLocale(QLocale::German));
    std::setlocale(LC_ALL, "de_DE.UTF-8"); // where it is installed
    EXPECT_THAT(values(read("voltage_volt\n3.25\n"), u"Voltage / V"_s), ElementsAre(3.25));
}

TEST_F(BdfFileTest, AHeaderAloneGivesNoRows)
{
    EXPECT_TRUE(values(read("voltage_volt"), u"Voltage / V"_s).empty());
}

TEST_F(BdfFileTest, MistakesAreToldWithTheirPlace)
{
    EXPECT_EQ(errorOf("voltage_volt,current_ampere\n1,2\n\n3,x\n"),
              "cell.bdf.csv, line 4, column 2 (current_ampere): \"x\" is not a number.");
    EXPECT_EQ(
        errorOf("voltage_volt;current_ampere\r\n1;2\r\n\r\n3,7;1\r\n"),
        "cell.bdf.csv, line 4, column 1 (voltage_volt): \"3,7\" has a decimal comma. Numbers have a decimal point.");
    EXPECT_THAT(errorOf("voltage_volt,step_id\n1,\"a\nb\"\n+-2,\n"), HasSubstr("line 4, column 1 "));
    EXPECT_THAT(errorOf("voltage_volt\n\"1\n\"\nx\n"), HasSubstr("line 4, column 1 "));
    EXPECT_THAT(errorOf("voltage_volt,step_id\n1,2,3\n"), HasSubstr("line 2, column 3: the row has more cells"));
    EXPECT_THAT(errorOf("voltage_volt,step_id\n1,2\n1\n"),
                HasSubstr("line 3, column 2 (step_id): the row has 1 cells"));
    EXPECT_THAT(errorOf("voltage_volt\n1e999\n"), HasSubstr("line 2, column 1 (voltage_volt): \"1e999\" is beyond"));
    EXPECT_THAT(errorOf("voltage_volt\n1\n1.2.3\n"), HasSubstr("line 3"));
    EXPECT_THAT(errorOf("voltage_volt\n0x10\n"), HasSubstr("not a number"));
    EXPECT_THAT(errorOf("voltage_volt\n1 2\n"), HasSubstr("not a number"));
    EXPECT_THAT(errorOf("voltage_volt\n--1\n"), HasSubstr("not a number"));
    EXPECT_THAT(errorOf("voltage_volt,step_id\n1,a\"b\n"), HasSubstr("line 2, column 2 (step_id): there is a quote"));
    EXPECT_THAT(errorOf("voltage_volt,step_id\n1,\"ab"), HasSubstr("line 2, column 2 (step_id): a quote is missing"));
}

TEST_F(BdfFileTest, HeadersThatCannotBeReadAreToldWithTheirPlace)
{
    EXPECT_THAT(errorOf("voltage_volt,x,Voltage / V\n1,2,3\n"),
                HasSubstr("line 1, column 3: this is another column of \"Voltage / V\"."));
    EXPECT_THAT(errorOf("a,b\n1,2\n"), HasSubstr("line 1: the header names no column"));
    EXPECT_THAT(errorOf("step_type\nrest\n"), HasSubstr("line 1: the header names no column"));
    EXPECT_THAT(errorOf(QByteArray(2000, 'x')), HasSubstr("line 1, column 1"));
    EXPECT_THAT(errorOf(QByteArray(100000, ',')), HasSubstr("more than 4096 columns"));
}

TEST_F(BdfFileTest, WhatIsNoFileOfTextIsAnError)
{
    for (const QByteArray& empty : {QByteArray(), QByteArray("\n\r\n \n"), QByteArray("\xEF\xBB\xBF")}) {
        EXPECT_EQ(errorOf(empty), "cell.bdf.csv is empty: it has no line of headers.");
    }
    EXPECT_EQ(errorOf(QByteArray("voltage_volt\n1\n\0\n", 17)), "cell.bdf.csv is not a text in UTF-8.");
    EXPECT_THAT(readBdf(directory.path(), catalogue()).error.toStdString(), HasSubstr("is a directory"));
    EXPECT_THAT(readBdf(directory.filePath(u"none"_s), catalogue()).error.toStdString(), HasSubstr("none cannot be"));
    if (QFile::exists(u"/dev/zero"_s)) {
        EXPECT_EQ(readBdf(u"/dev/zero"_s, catalogue()).error, u"zero is not an ordinary file.");
    }
}

TEST_F(BdfFileTest, ACellWithoutEndDoesNotFillTheMemory)
{
    EXPECT_THAT(errorOf("voltage_volt\n\"" + QByteArray(3000000, '1')),
                HasSubstr("line 2, column 1 (voltage_volt): the "
                          "cell is longer than 65536 bytes."));
    EXPECT_THAT(errorOf(QByteArray(3000000, 'x')), HasSubstr("line 1, column 1: "));
}

TEST_F(BdfFileTest, EachRowOfALongFileIsRead)
{
    constexpr int Rows = 200000; // several chunks, and rows that become longer than the first ones
    QByteArray text = "record_index,voltage_volt\n";
    for (int i = 0; i < Rows; ++i) {
        text += QByteArray::number(i) + ',' + QByteArray::number(i * 0.25, 'f', i < Rows / 2 ? 2 : 12) + '\n';
    }
    qint64 last = 0;
    const BdfFile file = readBdf(write(text), catalogue(), {}, [&](qint64 read, qint64 of) {
        EXPECT_GT(read, last);
        EXPECT_EQ(of, text.size());
        last = read;
    });
    EXPECT_EQ(last, text.size());
    const std::vector<double> indices = values(file, u"Record Index / 1"_s);
    const std::vector<double> voltages = values(file, u"Voltage / V"_s);
    ASSERT_EQ(indices.size(), Rows);
    for (int i = 0; i < Rows; ++i) {
        const auto row = static_cast<std::size_t>(i);
        ASSERT_EQ(indices[row], i);
        ASSERT_EQ(voltages[row], i * 0.25);
    }
}

TEST_F(BdfFileTest, WhoeverStopsItGetsNothing)
{
    QByteArray text = "voltage_volt\n";
    for (int i = 0; i < 500000; ++i) {
        text += "1.5\n";
    }
    std::stop_source source;
    int reports = 0;
    const BdfFile file = readBdf(write(text), catalogue(), source.get_token(), [&](qint64, qint64) {
        ++reports;
        source.request_stop();
    });
    EXPECT_TRUE(file.wasCancelled);
    EXPECT_FALSE(file.measurement.has_value());
    EXPECT_EQ(file.error, QString());
    EXPECT_EQ(reports, 1);
}

} // namespace

} // namespace cluiedit
