#include <condtree/platform/SystemRequirements.h>
#include <condtree/platform/SystemText.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <ios>

namespace condtree {
namespace {

HRESULT code(DWORD number)
{
    return static_cast<HRESULT>(number);
}

/// The result code of one of the operating system's error numbers.
constexpr DWORD win32(DWORD number)
{
    return 0x80070000 | number;
}

struct Row {
    DWORD code;
    const char16_t* text;
};

// Every code that has a system text; our own wording, which the users of every release see.
constexpr Row kKnown[] = {
    {0x8000000A, u"The result is not ready yet."},
    {0x8000000B, u"The position lies outside the allowed range."},
    {0x8000000C, u"The object was changed meanwhile, so the answer no longer holds."},
    {0x8000000E, u"The method cannot be called at this moment."},
    {0x80000013, u"The object was closed before."},
    {0x80004002, u"The object does not offer the interface that was asked for."},
    {0x80004004, u"The operation was aborted."},
    {0x80004021, u"The component does not support this operation."},
    {0x80010001, u"The called program turned the call down."},
    {0x80010002, u"The caller cancelled the call."},
    {0x80010006, u"The connection to the called program was lost."},
    {0x80010007, u"The called program ended during the call."},
    {0x80010008, u"The calling program ended during the call."},
    {0x80010100, u"A call of the operating system failed."},
    {0x80010105, u"The called program failed with an exception."},
    {0x80010106, u"The thread was set up in another way before."},
    {0x80010108, u"The object no longer has a connection to those who use it."},
    {0x8001010A, u"The called program is busy. Try again later."},
    {0x8001010E, u"The object was called from a thread that it does not belong to."},
    {0x8001011F, u"The call took too long and was given up."},
    {0x80020003, u"The object has no such member."},
    {0x80020004, u"The call names a parameter that does not exist."},
    {0x80020005, u"A value has the wrong type."},
    {0x80020006, u"The object does not know the name."},
    {0x80020007, u"The object takes no named arguments."},
    {0x80020008, u"A value has a type that is not supported."},
    {0x80020009, u"The called object raised an exception."},
    {0x8002000A, u"A value is too large for its type."},
    {0x8002000B, u"There is nothing at this index."},
    {0x8002000C, u"The language is not known."},
    {0x8002000D, u"The array is locked."},
    {0x8002000E, u"The call has the wrong number of arguments."},
    {0x8002000F, u"An argument that the call needs is missing."},
    {0x80020012, u"A number was divided by zero."},
    {0x8002801D, u"The type library has not been registered."},
    {0x8002802B, u"The type library has no such element."},
    {0x80029C4A, u"The type library cannot be loaded."},
    {0x80030001, u"The storage cannot do this."},
    {0x80030002, u"The storage has no such file."},
    {0x80030003, u"The storage has no such path."},
    {0x80030004, u"The storage cannot open more files."},
    {0x80030005, u"The storage may not be used in this way."},
    {0x80030006, u"The handle of the storage is not valid."},
    {0x80030008, u"There is not enough memory for the storage."},
    {0x80030009, u"An invalid pointer was given to the storage."},
    {0x80030012, u"The storage has no more files."},
    {0x80030013, u"The medium of the storage is write-protected."},
    {0x80030019, u"The place in the storage could not be reached."},
    {0x8003001D, u"The storage could not be written."},
    {0x8003001E, u"The storage could not be read."},
    {0x80030020, u"The storage is in use by somebody else."},
    {0x80030021, u"A part of the storage is locked."},
    {0x80030050, u"The storage has a file of this name already."},
    {0x80030057, u"An invalid argument was given to the storage."},
    {0x80030070, u"The medium of the storage is full."},
    {0x800300FC, u"The name is not one that the storage allows."},
    {0x800300FD, u"The storage failed for an unknown reason."},
    {0x800300FE, u"The storage does not implement this."},
    {0x80030100, u"The storage is being used at this moment."},
    {0x80030101, u"The storage was changed by somebody else since it was opened."},
    {0x80030102, u"The storage was taken back to an earlier state and can no longer be used."},
    {0x80030103, u"The storage cannot be saved."},
    {0x80030109, u"The storage is damaged."},
    {0x80040110, u"The class cannot be made part of another object."},
    {0x80040111, u"The library does not offer the class."},
    {0x80040112, u"The class may not be used without a licence."},
    {0x80040150, u"The registration of classes could not be read."},
    {0x80040151, u"The registration of classes could not be written."},
    {0x80040154, u"The class is not registered."},
    {0x80040155, u"The interface is not registered."},
    {0x800401E3, u"The object is not running."},
    {0x800401F0, u"The component library has not been initialised."},
    {0x800401F1, u"The component library was initialised before."},
    {0x800401F3, u"The name of the class is not valid."},
    {0x800401F8, u"The library of the class was not found."},
    {0x800401F9, u"The library of the class has a fault."},
    {0x800401FD, u"The object is not connected."},
    {0x8004D00E, u"There is no transaction."},
    {0x8004D019, u"The transaction was aborted."},
    {0x8004D01A, u"The log of transactions is full."},
    {0x8004D01B, u"The manager of transactions cannot be reached."},
    {0x8004D01C, u"The connection to the manager of transactions was lost."},
    {win32(1), u"The operation is not possible here."},
    {win32(2), u"The file was not found."},
    {win32(3), u"The path was not found."},
    {win32(4), u"No more files can be opened."},
    {win32(5), u"Access was denied."},
    {win32(6), u"The handle is not valid."},
    {win32(8), u"There is too little memory for this command."},
    {win32(13), u"The data has a fault."},
    {win32(15), u"The drive was not found."},
    {win32(17), u"The file cannot be moved to another medium."},
    {win32(18), u"There are no more files."},
    {win32(19), u"The medium is write-protected."},
    {win32(21), u"The device is not ready."},
    {win32(23), u"The data was damaged on its way."},
    {win32(25), u"The place on the medium could not be reached."},
    {win32(29), u"The device could not be written."},
    {win32(30), u"The device could not be read."},
    {win32(31), u"The device does not work."},
    {win32(32), u"The file is in use by another process."},
    {win32(33), u"A part of the file is locked by another process."},
    {win32(38), u"The end of the file was reached."},
    {win32(39), u"The medium is full."},
    {win32(50), u"This is not supported."},
    {win32(51), u"The computer on the network does not answer."},
    {win32(52), u"The network has this name twice."},
    {win32(53), u"The path on the network was not found."},
    {win32(54), u"The network is busy."},
    {win32(55), u"The device or share on the network is no longer there."},
    {win32(58), u"The server answered something that cannot be understood."},
    {win32(59), u"The network failed unexpectedly."},
    {win32(64), u"The server ended the connection."},
    {win32(65), u"Access to the network was denied."},
    {win32(67), u"The name was not found on the network."},
    {win32(71), u"The computer on the network takes no more connections."},
    {win32(80), u"There is a file of this name."},
    {win32(82), u"The file or folder could not be made."},
    {win32(108), u"The drive is in use by another process."},
    {win32(109), u"The other end of the pipe was closed."},
    {win32(110), u"The file or device could not be opened."},
    {win32(111), u"The name of the file is too long."},
    {win32(112), u"The disk has too little free space."},
    {win32(120), u"The system does not implement this function."},
    {win32(121), u"The wait for a semaphore took too long."},
    {win32(122), u"The buffer is too small for the data."},
    {win32(123), u"The name of the file, folder or volume is not valid."},
    {win32(126), u"The library or one that it needs was not found."},
    {win32(127), u"The library has no such function."},
    {win32(145), u"The folder is not empty."},
    {win32(161), u"The path is not valid."},
    {win32(170), u"What was asked for is in use."},
    {win32(183), u"The file exists already."},
    {win32(193), u"The program or library is not made for this system."},
    {win32(206), u"The name of the file or its extension is too long."},
    {win32(223), u"The file is too large."},
    {win32(232), u"The pipe is being closed."},
    {win32(233), u"Nobody is at the other end of the pipe."},
    {win32(234), u"There is more data than was asked for."},
    {win32(258), u"The wait took too long."},
    {win32(259), u"There are no more items."},
    {win32(267), u"The name is not that of a folder."},
    {win32(995), u"The operation was stopped as its thread ended or its program asked for it."},
    {win32(997), u"The operation goes on in the background."},
    {win32(998), u"A place in memory was used that may not be used."},
    {win32(1006), u"The file was changed from outside and can no longer be used."},
    {win32(1009), u"The settings database is damaged."},
    {win32(1011), u"The settings key could not be opened."},
    {win32(1012), u"The settings key could not be read."},
    {win32(1013), u"The settings key could not be written."},
    {win32(1018), u"The settings key is marked for deletion."},
    {win32(1053), u"The service did not start in time."},
    {win32(1058), u"The service is switched off."},
    {win32(1060), u"There is no such service."},
    {win32(1062), u"The service is not running."},
    {win32(1113), u"A character has no counterpart in the other character set."},
    {win32(1114), u"The library could not be initialised."},
    {win32(1117), u"The device failed while reading or writing."},
    {win32(1168), u"The element was not found."},
    {win32(1219), u"There is a connection to the server under another user name."},
    {win32(1223), u"The user cancelled the operation."},
    {win32(1225), u"The other computer refused the connection."},
    {win32(1226), u"The connection was closed in good order."},
    {win32(1229), u"The connection does not exist."},
    {win32(1231), u"The network cannot be reached."},
    {win32(1232), u"The computer cannot be reached over the network."},
    {win32(1234), u"No service listens at the address on the network."},
    {win32(1235), u"The request was stopped."},
    {win32(1236), u"The connection was stopped by this computer."},
    {win32(1237), u"The operation could not be finished. Try again."},
    {win32(1244), u"The user has not been authenticated."},
    {win32(1245), u"The user has not logged on to the network."},
    {win32(1314), u"A privilege that this needs is missing."},
    {win32(1317), u"There is no such user."},
    {win32(1326), u"The user name or the password is wrong."},
    {win32(1327), u"A restriction of the account does not allow this."},
    {win32(1330), u"The password has expired."},
    {win32(1331), u"The account is switched off."},
    {win32(1355), u"The domain does not exist or cannot be reached."},
    {win32(1392), u"The file or folder is damaged and cannot be read."},
    {win32(1450), u"The system has too few resources for this."},
    {win32(1455), u"There is too little virtual memory."},
    {win32(1460), u"The operation took too long and was given up."},
    {win32(1722), u"The server of the remote call cannot be reached."},
    {win32(1723), u"The server of the remote call is too busy."},
    {win32(1726), u"The remote call failed."},
    {win32(1816), u"There is too little quota left for this."},
    {win32(1909), u"The account is locked."},
    {win32(10013), u"The socket may not be used in this way."},
    {win32(10048), u"The address is in use by another socket."},
    {win32(10050), u"The network is down."},
    {win32(10051), u"There is no way to the network of the other computer."},
    {win32(10053), u"The connection was given up by this computer."},
    {win32(10054), u"The other computer reset the connection."},
    {win32(10055), u"There is too little buffer space for the socket."},
    {win32(10057), u"The socket is not connected."},
    {win32(10060), u"The other computer did not answer in time."},
    {win32(10061), u"The other computer turned the connection down."},
    {win32(10064), u"The other computer is down."},
    {win32(10065), u"There is no way to the other computer."},
    {win32(11001), u"The other computer's name is not known."},
    {win32(11002), u"The other computer's name could not be looked up now."},
    {0x80080005, u"The server program could not be started."},
};

TEST(SystemText, KnowsTheStandardCodes)
{
    for (const Row& row : kKnown)
        EXPECT_EQ(systemText(code(row.code)), QString::fromUtf16(row.text)) << std::hex << row.code;
}

TEST(SystemText, IsOneSentenceWithoutALineEnd)
{
    for (const Row& row : kKnown) {
        const CString text = systemText(code(row.code));
        EXPECT_TRUE(text.endsWith(u'.')) << std::hex << row.code;
        EXPECT_EQ(text, text.simplified()) << std::hex << row.code;
    }
}

TEST(SystemText, HasNoTextForOtherCodes)
{
    for (const DWORD number :
         {0x0U, 0x5U, 0x80004000U, 0x80004003U, 0x80040000U, 0x800401FFU, 0x80040200U, 0x80040F00U,
          0x80550000U, 0x8000FFFFU, 0x80070000U, 0x80070007U, 0x8007000EU, 0x80070057U, 0x800705B5U,
          0x80080004U, 0x80080006U, 0xFFFFFFFFU})
        EXPECT_EQ(systemText(code(number)), QString()) << std::hex << number;
}

/// Whether a code is among those that have a text.
bool isKnown(DWORD number)
{
    return std::any_of(std::begin(kKnown), std::end(kKnown),
                       [number](const Row& row) { return row.code == number; });
}

TEST(SystemText, LeavesTheCodesOfProgramsAndOfTheInternetTransferAlone)
{
    for (DWORD number = 0x80040200; number <= 0x80041FFF; ++number)
        ASSERT_EQ(systemText(code(number)), QString()) << std::hex << number;
    for (DWORD number = 0x80072EE0; number <= 0x80072FA0; ++number)
        ASSERT_EQ(systemText(code(number)), QString()) << std::hex << number;
}

TEST(SystemText, HasNoTextBesideTheOnesListed)
{
    for (DWORD number = 0x80000000; number <= 0x8008FFFF; ++number)
        ASSERT_EQ(!systemText(code(number)).isEmpty(), isKnown(number)) << std::hex << number;
}

TEST(SystemRequirements, AreThoseOfThisPlatform)
{
    const auto lines = systemRequirements();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(QString::fromUtf16(lines.front()), QStringLiteral("  Debian 12 or later."));
}

} // namespace
} // namespace condtree
