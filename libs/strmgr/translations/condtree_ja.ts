<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Columns</name>
    <message>
        <source>Variable</source>
        <comment>TS 1</comment>
        <translation>変数</translation>
    </message>
    <message>
        <source>Operator</source>
        <comment>TS 2</comment>
        <translation>演算子</translation>
    </message>
    <message>
        <source>Value</source>
        <comment>TS 3</comment>
        <translation>値</translation>
    </message>
    <message>
        <source>Remark</source>
        <comment>TS 4</comment>
        <translation>備考</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>TS 5</comment>
        <translation>列</translation>
    </message>
    <message>
        <source>Left and Right choose a boundary, plus and minus move it, Home resets the columns.</source>
        <comment>TS 6</comment>
        <translation>左右キーで境界を選択し、プラスとマイナスで移動し、Home で列を元に戻します。</translation>
    </message>
</context>
<context>
    <name>ErrorCodes</name>
    <message>
        <source>The method was successfully executed.</source>
        <comment>ErrorCodes 0</comment>
        <translation>メソッドは正常に実行されました。</translation>
    </message>
    <message>
        <source>The method was successfully executed but returned &apos;false&apos;.</source>
        <comment>ErrorCodes 1</comment>
        <translation>メソッドは正常に実行されましたが、「false」を返しました。</translation>
    </message>
    <message>
        <source>The program used an object without initializing it properly first.</source>
        <comment>ErrorCodes 3</comment>
        <translation>プログラムが、正しく初期化されていないオブジェクトを使用しました。</translation>
    </message>
    <message>
        <source>The folder does not have a parent.</source>
        <comment>ErrorCodes 4</comment>
        <translation>このフォルダーには親フォルダーがありません。</translation>
    </message>
    <message>
        <source>You don&apos;t have permission to perform this action.</source>
        <comment>ErrorCodes 5</comment>
        <translation>この操作を行う権限がありません。</translation>
    </message>
    <message>
        <source>You haven&apos;t logged in on the file vault.</source>
        <comment>ErrorCodes 6</comment>
        <translation>ファイル ボルトにログインしていません。</translation>
    </message>
    <message>
        <source>You tried to log in twice.</source>
        <comment>ErrorCodes 7</comment>
        <translation>二重にログインしようとしました。</translation>
    </message>
    <message>
        <source>Could not open database. This could happen if the network connection is broken or if the database has been removed.</source>
        <comment>ErrorCodes 8</comment>
        <translation>データベースを開けませんでした。ネットワーク接続が切れているか、データベースが削除された可能性があります。</translation>
    </message>
    <message>
        <source>Could not access the item in the database.</source>
        <comment>ErrorCodes 9</comment>
        <translation>データベース内の項目にアクセスできませんでした。</translation>
    </message>
    <message>
        <source>You tried to get an element from a list where the cursor is off-right.</source>
        <comment>ErrorCodes 10</comment>
        <translation>カーソルが右端を越えたリストから要素を取得しようとしました。</translation>
    </message>
    <message>
        <source>Error accessing the revision management system. Network connection down?</source>
        <comment>ErrorCodes 11</comment>
        <translation>リビジョン管理システムへのアクセス中にエラーが発生しました。ネットワーク接続が切れていませんか?</translation>
    </message>
    <message>
        <source>An attempt was made to access a record in the database that is locked by another user.
This can sometimes happen during high workload on the database.
Usually this is solved if you try the operation again.</source>
        <comment>ErrorCodes 12</comment>
        <translation>別のユーザーがロックしているデータベースのレコードにアクセスしようとしました。
データベースの負荷が高いときに起こることがあります。
通常は、操作をもう一度行うと解決します。</translation>
    </message>
    <message>
        <source>An attempt was made to access a file that is exclusively opened by another application.</source>
        <comment>ErrorCodes 13</comment>
        <translation>別のアプリケーションが排他的に開いているファイルにアクセスしようとしました。</translation>
    </message>
    <message>
        <source>Administrated plugins successfully. You should now recreate the plugin menu.</source>
        <comment>ErrorCodes 26</comment>
        <translation>プラグインの管理が完了しました。プラグイン メニューを作成し直してください。</translation>
    </message>
    <message>
        <source>Menu item not valid in this context due to specified flags.</source>
        <comment>ErrorCodes 27</comment>
        <translation>指定されたフラグのため、このメニュー項目はこの状況では無効です。</translation>
    </message>
    <message>
        <source>An invalid pointer was supplied to the method.</source>
        <comment>ErrorCodes 32</comment>
        <translation>メソッドに無効なポインターが渡されました。</translation>
    </message>
    <message>
        <source>Not enough memory to complete the operation.</source>
        <comment>ErrorCodes 33</comment>
        <translation>メモリ不足のため、操作を完了できません。</translation>
    </message>
    <message>
        <source>An invalid argument was given to the method.</source>
        <comment>ErrorCodes 34</comment>
        <translation>メソッドに無効な引数が渡されました。</translation>
    </message>
    <message>
        <source>The called method is not implemented.</source>
        <comment>ErrorCodes 64</comment>
        <translation>呼び出されたメソッドは実装されていません。</translation>
    </message>
    <message>
        <source>An unspecified error occurred.</source>
        <comment>ErrorCodes 66</comment>
        <translation>特定できないエラーが発生しました。</translation>
    </message>
    <message>
        <source>The SQL Server version is not supported by Tamsel.</source>
        <comment>ErrorCodes 183</comment>
        <translation>この SQL Server のバージョンは Tamsel でサポートされていません。</translation>
    </message>
    <message>
        <source>Supported versions:</source>
        <comment>ErrorCodes 196</comment>
        <translation>サポートされるバージョン:</translation>
    </message>
    <message>
        <source>The operating system version is not supported
The following is the minimum requirement:</source>
        <comment>ErrorCodes 274</comment>
        <translation>オペレーティング システムのバージョンがサポートされていません
最小要件は次のとおりです:</translation>
    </message>
</context>
<context>
    <name>ItemMgr</name>
    <message>
        <source>Item</source>
        <comment>TS 15</comment>
        <translation>アイテム</translation>
    </message>
</context>
<context>
    <name>Search</name>
    <message>
        <source>And</source>
        <comment>TS 38</comment>
        <translation>かつ</translation>
    </message>
    <message>
        <source>Or</source>
        <comment>TS 39</comment>
        <translation>または</translation>
    </message>
    <message>
        <source>&lt;Any Variable&gt;</source>
        <comment>TS 44</comment>
        <translation>&lt;任意の変数&gt;</translation>
    </message>
    <message>
        <source>Remove</source>
        <comment>TS 55</comment>
        <translation>削除</translation>
    </message>
    <message>
        <source>&lt;Click here to add a condition&gt;</source>
        <comment>TS 70</comment>
        <translation>&lt;ここをクリックして条件を追加&gt;</translation>
    </message>
    <message>
        <source>String Equal To</source>
        <comment>OpName 100</comment>
        <translation>文字列が等しい</translation>
    </message>
    <message>
        <source>String Not Equal To</source>
        <comment>OpName 101</comment>
        <translation>文字列が等しくない</translation>
    </message>
    <message>
        <source>String Less Than</source>
        <comment>OpName 102</comment>
        <translation>文字列が次より小さい</translation>
    </message>
    <message>
        <source>String Bigger Than</source>
        <comment>OpName 103</comment>
        <translation>文字列が次より大きい</translation>
    </message>
    <message>
        <source>String Less Than or Equal</source>
        <comment>OpName 104</comment>
        <translation>文字列が次以下</translation>
    </message>
    <message>
        <source>String Bigger Than or Equal</source>
        <comment>OpName 105</comment>
        <translation>文字列が次以上</translation>
    </message>
    <message>
        <source>String Contains</source>
        <comment>OpName 106</comment>
        <translation>文字列が次を含む</translation>
    </message>
    <message>
        <source>String Does Not Contain</source>
        <comment>OpName 107</comment>
        <translation>文字列が次を含まない</translation>
    </message>
    <message>
        <source>Text Compare</source>
        <comment>OpName 108</comment>
        <translation>文字列の比較</translation>
    </message>
    <message>
        <source>Number Equal To</source>
        <comment>OpName 120</comment>
        <translation>数値が等しい</translation>
    </message>
    <message>
        <source>Number Not Equal To</source>
        <comment>OpName 121</comment>
        <translation>数値が等しくない</translation>
    </message>
    <message>
        <source>Number Less Than</source>
        <comment>OpName 122</comment>
        <translation>数値が次より小さい</translation>
    </message>
    <message>
        <source>Number Bigger Than</source>
        <comment>OpName 123</comment>
        <translation>数値が次より大きい</translation>
    </message>
    <message>
        <source>Number Less Than or Equal</source>
        <comment>OpName 124</comment>
        <translation>数値が次以下</translation>
    </message>
    <message>
        <source>Number Bigger Than or Equal</source>
        <comment>OpName 125</comment>
        <translation>数値が次以上</translation>
    </message>
    <message>
        <source>Date Equal To</source>
        <comment>OpName 130</comment>
        <translation>日付が等しい</translation>
    </message>
    <message>
        <source>Date Not Equal To</source>
        <comment>OpName 131</comment>
        <translation>日付が等しくない</translation>
    </message>
    <message>
        <source>Date Less Than</source>
        <comment>OpName 132</comment>
        <translation>日付が次より前</translation>
    </message>
    <message>
        <source>Date Bigger Than</source>
        <comment>OpName 133</comment>
        <translation>日付が次より後</translation>
    </message>
    <message>
        <source>Date Less Than or Equal</source>
        <comment>OpName 134</comment>
        <translation>日付が次以前</translation>
    </message>
    <message>
        <source>Date Bigger Than or Equal</source>
        <comment>OpName 135</comment>
        <translation>日付が次以降</translation>
    </message>
    <message>
        <source>Binary Equal To</source>
        <comment>OpName 139</comment>
        <translation>はい/いいえが等しい</translation>
    </message>
</context>
<context>
    <name>StoredProcs</name>
    <message>
        <source>The condition was saved by somebody else after it was loaded; your changes were not saved. Load the condition again and repeat your changes.</source>
        <comment>StoredProcs 1</comment>
        <translation>条件は、読み込んだ後にほかのユーザーによって保存されました。こちらで行った変更は保存されていません。条件を読み込み直して、変更をやり直してください。</translation>
    </message>
    <message>
        <source>A text holds a character that the database cannot hold; your changes were not saved. Remove the character and save again.</source>
        <comment>StoredProcs 2</comment>
        <translation>データベースに格納できない文字が文字列に含まれています。変更は保存されていません。その文字を取り除いて、もう一度保存してください。</translation>
    </message>
    <message>
        <source>A text is larger than 16 MiB, which the database cannot hold; your changes were not saved. Shorten the text and save again.</source>
        <comment>StoredProcs 3</comment>
        <translation>文字列がデータベースに格納できる上限の 16 MiB を超えています。変更は保存されていません。文字列を短くして、もう一度保存してください。</translation>
    </message>
</context>
<context>
    <name>Workflow</name>
    <message>
        <source>FilePath</source>
        <comment>TS 20</comment>
        <translation>ファイル パス</translation>
    </message>
    <message>
        <source>Revision</source>
        <comment>TS 21</comment>
        <translation>リビジョン</translation>
    </message>
    <message>
        <source>User</source>
        <comment>TS 40</comment>
        <translation>ユーザー</translation>
    </message>
    <message>
        <source>Yes</source>
        <comment>TS 58</comment>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <comment>TS 59</comment>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Category</source>
        <comment>TS 87</comment>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>TS 180</comment>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Object Type</source>
        <comment>TS 732</comment>
        <translation>オブジェクト タイプ</translation>
    </message>
    <message>
        <source>File</source>
        <comment>TS 733</comment>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>BOM</source>
        <comment>TS 734</comment>
        <translation>部品表</translation>
    </message>
    <message>
        <source>Child Reference State</source>
        <comment>TS 756</comment>
        <translation>子参照の状態</translation>
    </message>
    <message>
        <source>Child Reference historic State</source>
        <comment>TS 757</comment>
        <translation>子参照の過去の状態</translation>
    </message>
</context>
</TS>
