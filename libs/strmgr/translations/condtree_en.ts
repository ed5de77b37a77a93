<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Search</name>
    <message>
        <source>String Equal To</source>
        <comment>OpName 100</comment>
        <translation>String Equal To</translation>
    </message>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>String Not Equal To</translation>
    </message>
    <message>
        <source>String Less Than</source>
        <comment>OpName 102</comment>
        <translation>String Less Than</translation>
    </message>
    <message>
        <source>String Bigger Than</source>
        <comment>OpName 103</comment>
        <translation>String Bigger Than</translation>
    </message>
    <message>
        <source>String Less Than or Equal</source>
        <comment>OpName 104</comment>
        <translation>String Less Than or Equal</translation>
    </message>
    <message>
        <source>String Bigger Than or Equal</source>
        <comment>OpName 105</comment>
        <translation>String Bigger Than or Equal</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>String Contains</translation>
    </message>
    <message>
        <source>String Does Not Contain</source>
        <comment>OpName 107</comment>
        <translation>String Does Not Contain</translation>
    </message>
    <message>
        <source>Text Compare</source>
        <comment>OpName 108</comment>
        <translation>Text Compare</translation>
    </message>
    <message>
        <source>Number Equal To</source>
        <comment>OpName 120</comment>
        <translation>Number Equal To</translation>
    </message>
    <message>
        <source>Number Not Equal To</source>
        <comment>OpName 121</comment>
        <translation>Number Not Equal To</translation>
    </message>
    <message>
        <source>Number Less Than</source>
        <comment>OpName 122</comment>
        <translation>Number Less Than</translation>
    </message>
    <message>
        <source>Number Bigger Than</source>
        <comment>OpName 123</comment>
        <translation>Number Bigger Than</translation>
    </message>
    <message>
        <source>Number Less Than or Equal</source>
        <comment>OpName 124</comment>
        <translation>Number Less Than or Equal</translation>
    </message>
    <message>
        <source>Number Bigger Than or Equal</source>
        <comment>OpName 125</comment>
        <translation>Number Bigger Than or Equal</translation>
    </message>
    <message>
        <source>Date Equal To</source>
        <comment>OpName 130</comment>
        <translation>Date Equal To</translation>
    </message>
    <message>
        <source>Date Not Equal To</source>
        <comment>OpName 131</comment>
        <translation>Date Not Equal To</translation>
    </message>
    <message>
        <source>Date Less Than</source>
        <comment>OpName 132</comment>
        <translation>Date Less Than</translation>
    </message>
    <message>
        <source>Date Bigger Than</source>
        <comment>OpName 133</comment>
        <translation>Date Bigger Than</translation>
    </message>
    <message>
        <source>Date Less Than or Equal</source>
        <comment>OpName 134</comment>
        <translation>Date Less Than or Equal</translation>
    </message>
    <message>
        <source>Date Bigger Than or Equal</source>
        <comment>OpName 135</comment>
        <translation>Date Bigger Than or Equal</translation>
    </message>
    <message>
        <source>Binary Equal To</source>
        <comment>OpName 139</comment>
        <translation>Binary Equal To</translation>
    </message>
    <message>
        <source>And</source>
        <comment>TS 38</comment>
        <translation>And</translation>
    </message>
    <message>
        <source>Or</source>
        <comment>TS 39</comment>
        <translation>Or</translation>
    </message>
    <message>
        <source>&lt;Any Variable&gt;</source>
        <comment>TS 44</comment>
        <translation>&lt;Any Variable&gt;</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>TS 55</comment>
        <translation>Remove</translation>
    </message>
    <message>
        <source>&lt;Click here to add a condition&gt;</source>
        <comment>TS 70</comment>
        <translation>&lt;Click here to add a condition&gt;</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>FilePath</source>
        <comment>TS 20</comment>
        <translation>FilePath</translation>
    </message>
    <message>
        <source>Revision</source>
        <comment>TS 21</comment>
        <translation>Revision</translation>
    </message>
    <message>
        <source>User</source>
        <comment>TS 40</comment>
        <translation>User</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>TS 58</comment>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <comment>TS 59</comment>
        <translation>No</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>TS 87</comment>
        <translation>Category</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation>Group</translation>
    </message>
    <message>
        <source>Object Type</source>
        <comment>TS 732</comment>
        <translation>Object Type</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>File</translation>
    </message>
    <message>
        <source>BOM</source>
        <comment>TS 734</comment>
        <translation>BOM</translation>
    </message>
    <message>
        <source>Child Reference State</source>
        <comment>TS 756</comment>
        <translation>Child Reference State</translation>
    </message>
    <message>
        <source>Child Reference historic State</source>
        <comment>TS 757</comment>
        <translation>Child Reference historic State</translation>
    </message>
</context>
<context>
    <name>ItemMgr</name>
    <message>
        <source>Item</source>
        <comment>TS 15</comment>
        <translation>Item</translation>
    </message>
</context>
</TS>
