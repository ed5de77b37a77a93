<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ConditionJson</name>
    <message>
        <source>row %1: the field %2 holds %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+0000</extracomment>
        <translation>行 %1: フィールド %2 に、ファイルに格納できない文字 %3 が含まれています</translation>
    </message>
    <message>
        <source>row %1: the field %2 holds the unpaired surrogate %3, which a file cannot carry</source>
        <extracomment>%2 is the field&apos;s name in the file, %3 a character as U+D800</extracomment>
        <translation>行 %1: フィールド %2 に、ファイルに格納できない、対になっていないサロゲート %3 が含まれています</translation>
    </message>
    <message>
        <source>true or false</source>
        <extracomment>Behind &quot;a number is expected, not&quot;; so are the other kinds of value</extracomment>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>null</source>
        <extracomment>The word of JSON for no value</extracomment>
        <translation>null</translation>
    </message>
    <message>
        <source>a number is expected, not %1</source>
        <translation>数値が必要なところに%1があります</translation>
    </message>
    <message>
        <source>a text is expected, not %1</source>
        <translation>文字列が必要なところに%1があります</translation>
    </message>
    <message>
        <source>a list is expected, not %1</source>
        <translation>リストが必要なところに%1があります</translation>
    </message>
    <message>
        <source>an object is expected, not %1</source>
        <translation>オブジェクトが必要なところに%1があります</translation>
    </message>
    <message>
        <source>%1 is no whole number of 32 bits</source>
        <translation>%1 は 32 ビットの整数ではありません</translation>
    </message>
    <message>
        <source>the text holds %1</source>
        <extracomment>%1 is a character as U+0000</extracomment>
        <translation>文字列に %1 が含まれています</translation>
    </message>
    <message>
        <source>the text holds the unpaired surrogate %1</source>
        <extracomment>%1 is a character as U+D800</extracomment>
        <translation>文字列に、対になっていないサロゲート %1 が含まれています</translation>
    </message>
    <message>
        <source>the field is missing</source>
        <translation>フィールドがありません</translation>
    </message>
    <message>
        <source>the field %1 is unknown</source>
        <translation>フィールド %1 は不明です</translation>
    </message>
    <message>
        <source>%1 is expected, not %2</source>
        <extracomment>%1 and %2 are values: 1, &quot;condtree-condition&quot;</extracomment>
        <translation>%1 が必要ですが、%2 になっています</translation>
    </message>
    <message>
        <source>%1 (byte %2, line %3)</source>
        <extracomment>%1 is what is wrong in a file, %2 and %3 the place</extracomment>
        <translation>%1 (バイト位置 %2、%3 行目)</translation>
    </message>
    <message>
        <source>not JSON: %1</source>
        <extracomment>%1 is the reason, perhaps in the words of the toolkit</extracomment>
        <translation>有効な JSON ではありません: %1</translation>
    </message>
    <message>
        <source>more than %1 values</source>
        <extracomment>%1 is 4000000; values are objects, lists and whatever stands in them</extracomment>
        <translation>値の数が %1 個を超えています</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>ファイルが空です</translation>
    </message>
    <message>
        <source>the text is in UTF-16 or UTF-32; UTF-8 is expected</source>
        <translation>テキストが UTF-16 または UTF-32 です。UTF-8 である必要があります</translation>
    </message>
    <message>
        <source>the condition takes more than the %1 bytes that a file may have</source>
        <translation>条件のサイズが、ファイルの上限の %1 バイトを超えています</translation>
    </message>
    <message>
        <source>the condition has more than %1 values, which no file may have</source>
        <extracomment>%1 is 4000000</extracomment>
        <translation>条件の値の数が、ファイルの上限の %1 個を超えています</translation>
    </message>
</context>
<context>
    <name>Database</name>
    <message>
        <source>cannot open the database %1</source>
        <translation>データベース %1 を開けません</translation>
    </message>
    <message>
        <source>there is no database %1</source>
        <translation>データベース %1 は存在しません</translation>
    </message>
    <message>
        <source>the database %1 has no user %2</source>
        <translation>データベース %1 にユーザー %2 は存在しません</translation>
    </message>
    <message>
        <source>cannot make the folder %1</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>cannot make the sample database %1</source>
        <translation>サンプル データベース %1 を作成できません</translation>
    </message>
    <message>
        <source>cannot read the transitions</source>
        <translation>遷移を読み込めません</translation>
    </message>
    <message>
        <source>cannot read the condition of %1</source>
        <translation>%1 の条件を読み込めません</translation>
    </message>
    <message>
        <source>cannot save the condition of %1</source>
        <translation>%1 の条件を保存できません</translation>
    </message>
    <message>
        <source>more than one transition is named %1</source>
        <translation>%1 という名前の遷移が複数あります</translation>
    </message>
    <message>
        <source>there is no transition %1</source>
        <translation>遷移 %1 は存在しません</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>Conditions (*.json);;All files (*)</source>
        <translation>条件 (*.json);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The condition of %1 has changes that are not saved.</source>
        <translation>%1 の条件に、保存されていない変更があります。</translation>
    </message>
    <message>
        <source>Save them before going on?</source>
        <translation>続行する前に保存しますか?</translation>
    </message>
    <message>
        <source>Give up the changes to the condition of %1?</source>
        <translation>%1 の条件に加えた変更を破棄しますか?</translation>
    </message>
    <message>
        <source>The condition will be read from the database again.</source>
        <translation>条件はデータベースから読み込み直されます。</translation>
    </message>
    <message>
        <source>Import a condition</source>
        <translation>条件のインポート</translation>
    </message>
    <message>
        <source>Export the condition</source>
        <translation>条件のエクスポート</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>standard input</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>standard output</source>
        <extracomment>Stands where the name of a file stands otherwise</extracomment>
        <translation>標準出力</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: 読み取れません: %2</translation>
    </message>
    <message>
        <source>%1: cannot be written: %2</source>
        <extracomment>%1 is a file, %2 the reason in the words of the system</extracomment>
        <translation>%1: 書き込めません: %2</translation>
    </message>
    <message>
        <source>is a folder, not a file</source>
        <translation>ファイルではなくフォルダーです</translation>
    </message>
    <message>
        <source>%1: more than the limit of %2 bytes</source>
        <translation>%1: 上限の %2 バイトを超えています</translation>
    </message>
    <message>
        <source>is no regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>%1: %2 bytes; the limit is %3 bytes</source>
        <translation>%1: %2 バイトあります (上限は %3 バイト)</translation>
    </message>
</context>
<context>
    <name>Headless</name>
    <message>
        <source>the picture cannot be made</source>
        <translation>画像を作成できません</translation>
    </message>
    <message>
        <source>the database has no transitions</source>
        <translation>データベースに遷移がありません</translation>
    </message>
</context>
<context>
    <name>JsonFlaws</name>
    <message>
        <source>a control character in a text</source>
        <extracomment>Behind &quot;not JSON: &quot;; so are the next ones</extracomment>
        <translation>文字列に制御文字があります</translation>
    </message>
    <message>
        <source>an unknown escape sequence</source>
        <translation>不明なエスケープ シーケンスがあります</translation>
    </message>
    <message>
        <source>the key %1 is given twice</source>
        <translation>キー %1 が重複しています</translation>
    </message>
    <message>
        <source>an incomplete number</source>
        <translation>数値が不完全です</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>there is no display to open a window on: %1 is not set</source>
        <extracomment>%1 is a variable of the environment</extracomment>
        <translation>ウィンドウを開くためのディスプレイがありません: %1 が設定されていません</translation>
    </message>
    <message>
        <source>there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>ウィンドウを開くためのディスプレイがありません: DISPLAY も WAYLAND_DISPLAY も設定されていません</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>CondTree Workbench</source>
        <extracomment>The name of the program, in titles of windows</extracomment>
        <translation>CondTree Workbench</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 is a file, a field, a transition or what could not be done, %2 what is wrong with it</extracomment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Options</name>
    <message>
        <source>the database; without it the sample database is opened</source>
        <extracomment>Of --db. This and what follows are lines of the list of options</extracomment>
        <translation>データベース (省略するとサンプル データベースを開く)</translation>
    </message>
    <message>
        <source>the login name</source>
        <translation>ログイン名</translation>
    </message>
    <message>
        <source>the transition, WORKFLOW/NAME as --list has it</source>
        <extracomment>WORKFLOW and NAME may be translated</extracomment>
        <translation>遷移 (--list の表示と同じ「ワークフロー/名前」の形式)</translation>
    </message>
    <message>
        <source>the language, such as de or pt_BR; without it the user&apos;s own</source>
        <translation>言語 (de、pt_BR など。省略するとユーザーの言語)</translation>
    </message>
    <message>
        <source>print the transitions</source>
        <translation>遷移を表示する</translation>
    </message>
    <message>
        <source>print the transition&apos;s condition as a tree</source>
        <translation>遷移の条件をツリーで表示する</translation>
    </message>
    <message>
        <source>write the condition as JSON; - is the standard output</source>
        <translation>条件を JSON で書き出す (- は標準出力)</translation>
    </message>
    <message>
        <source>store a condition from JSON; - is the standard input</source>
        <translation>JSON から読み込んだ条件を保存する (- は標準入力)</translation>
    </message>
    <message>
        <source>draw the window to a PNG picture</source>
        <translation>ウィンドウを PNG 画像に描画する</translation>
    </message>
    <message>
        <source>print this text</source>
        <translation>この説明を表示する</translation>
    </message>
    <message>
        <source>print the version</source>
        <translation>バージョンを表示する</translation>
    </message>
    <message>
        <source>%1 needs %2</source>
        <extracomment>%1 and %2 are options</extracomment>
        <translation>%1 には %2 が必要です</translation>
    </message>
    <message>
        <source>unexpected argument %1</source>
        <translation>予期しない引数: %1</translation>
    </message>
    <message>
        <source>unknown option %1</source>
        <translation>不明なオプション: %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 に値は指定できません</translation>
    </message>
    <message>
        <source>%1 needs a value: %2</source>
        <extracomment>%1 is an option, %2 the kind of value, as FILE</extracomment>
        <translation>%1 には値が必要です: %2</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 が 2 回指定されています</translation>
    </message>
    <message>
        <source>Usage: condtree-workbench [OPTION]...</source>
        <translation>使用法: condtree-workbench [オプション]...</translation>
    </message>
    <message>
        <source>Edit the conditions of workflow transitions.</source>
        <translation>ワークフローの遷移の条件を編集します。</translation>
    </message>
    <message>
        <source>With --list, --print, --export, --import or --screenshot no window is opened and no display
is needed.</source>
        <extracomment>Lines of at most 100 characters</extracomment>
        <translation>--list、--print、--export、--import、--screenshot のいずれかを指定すると、
ウィンドウは開かず、ディスプレイも必要ありません。</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>OK(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <extracomment>A button of a message box on a GNOME desktop</extracomment>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <extracomment>A button of a message box on a GNOME desktop: goes on and gives up the changes</extracomment>
        <translation>保存せずに閉じる</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <extracomment>A button of a message box</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>A button of a message box</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>A button of a message box</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>A button of a message box: gives up the changes</extracomment>
        <translation>破棄</translation>
    </message>
</context>
<context>
    <name>RecordChanges</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The beginning of a list of row numbers, &quot;1, 2 and 9&quot;</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>The end of a list of row numbers, &quot;1, 2 and 9&quot;: %2 is the last one</extracomment>
        <translation>%1、%2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <extracomment>A list of row numbers that is cut: &quot;1, 2, 3, 4, 5 and 7 more&quot;</extracomment>
        <translation>
            <numerusform>%1、ほか %n 行</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SaveRefusal</name>
    <message>
        <source>Row %1: the name holds a character that the database cannot hold.</source>
        <translation>行 %1: 名前に、データベースに格納できない文字が含まれています。</translation>
    </message>
    <message>
        <source>Row %1: the remark holds a character that the database cannot hold.</source>
        <translation>行 %1: 備考に、データベースに格納できない文字が含まれています。</translation>
    </message>
    <message>
        <source>Row %1: the value holds a character that the database cannot hold.</source>
        <translation>行 %1: 値に、データベースに格納できない文字が含まれています。</translation>
    </message>
    <message>
        <source>Row %1: the name is larger than 16 MiB, which the database cannot hold.</source>
        <translation>行 %1: 名前が 16 MiB を超えているため、データベースに格納できません。</translation>
    </message>
    <message>
        <source>Row %1: the remark is larger than 16 MiB, which the database cannot hold.</source>
        <translation>行 %1: 備考が 16 MiB を超えているため、データベースに格納できません。</translation>
    </message>
    <message>
        <source>Row %1: the value is larger than 16 MiB, which the database cannot hold.</source>
        <translation>行 %1: 値が 16 MiB を超えているため、データベースに格納できません。</translation>
    </message>
    <message>
        <source>The condition was saved by %1 after it was loaded; your changes were not saved.</source>
        <translation>この条件は、読み込み後に %1 によって保存されました。こちらで行った変更は保存されていません。</translation>
    </message>
    <message>
        <source>The condition was saved by %1 (%2) after it was loaded; your changes were not saved.</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>この条件は、読み込み後に %1 によって保存されました (%2)。こちらで行った変更は保存されていません。</translation>
    </message>
    <message>
        <source>The disk is full; your changes were not saved.</source>
        <translation>ディスクの空き容量がありません。変更は保存されていません。</translation>
    </message>
    <message>
        <source>The database could not be written; your changes were not saved.</source>
        <translation>データベースに書き込めませんでした。変更は保存されていません。</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::ConditionEditor</name>
    <message>
        <source>Never changed</source>
        <translation>最終変更: なし</translation>
    </message>
    <message>
        <source>Last changed by %1, %2</source>
        <extracomment>%1 is a login name, %2 a date and time</extracomment>
        <translation>最終変更: %1、%2</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>What the rows are to those who hear the window</extracomment>
        <translation>条件</translation>
    </message>
    <message>
        <source>There is no transition to save.</source>
        <translation>保存する遷移がありません。</translation>
    </message>
    <message>
        <source>There is no transition to import into.</source>
        <translation>インポート先の遷移がありません。</translation>
    </message>
    <message numerus="yes">
        <source>Saving will drop %n of the %1 record(s) that were read.</source>
        <translation>
            <numerusform>保存すると、読み込んだ %1 件のレコードのうち %n 件が削除されます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Saving will store something other than what was read: %n of the %1 record(s), row(s) %2.</source>
        <extracomment>%n counts the records that change, %1 all; %2 names the first: &quot;3&quot;, &quot;1, 2 and 9&quot;</extracomment>
        <translation>
            <numerusform>保存すると、読み込んだ内容とは異なる内容が格納されます: レコード %1 件のうち %n 件、行 %2。</numerusform>
        </translation>
    </message>
    <message>
        <source>No transition is open</source>
        <translation>開いている遷移はありません</translation>
    </message>
    <message>
        <source>%1: %2 → %3</source>
        <extracomment>A workflow and the states that a transition goes from and to</extracomment>
        <translation>%1: %2 → %3</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::MainWindow</name>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>変更を破棄(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>インポート(&amp;I)…</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>エクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Condition</source>
        <extracomment>The menu of what is done with a condition</extracomment>
        <translation>条件(&amp;C)</translation>
    </message>
    <message>
        <source>Condition</source>
        <extracomment>The name of the tool bar, as its context menu shows it</extracomment>
        <translation>条件</translation>
    </message>
    <message>
        <source>&amp;Transitions</source>
        <translation>遷移(&amp;T)</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <extracomment>%1 is a login name, %2 the name of a database</extracomment>
        <translation>%1 (データベース %2)</translation>
    </message>
    <message>
        <source>Nothing was stored, and your changes are still here. You can export them to a file, or revert to the condition in the database.</source>
        <translation>何も保存されていません。変更内容はそのまま残っています。ファイルにエクスポートするか、変更を破棄してデータベースの条件に戻すことができます。</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>There is nothing to save.</source>
        <translation>保存する変更はありません。</translation>
    </message>
    <message>
        <source>Read from the database again.</source>
        <translation>データベースから読み込み直しました。</translation>
    </message>
    <message>
        <source>Imported. Save stores it in the database.</source>
        <translation>インポートしました。「保存」を実行するとデータベースに格納されます。</translation>
    </message>
    <message>
        <source>Exported to %1</source>
        <translation>%1 にエクスポートしました</translation>
    </message>
</context>
<context>
    <name>condtree::workbench::TransitionList</name>
    <message>
        <source>Workflows and their transitions</source>
        <extracomment>What the list is to those who hear the window</extracomment>
        <translation>ワークフローとその遷移</translation>
    </message>
    <message>
        <source>* %1</source>
        <extracomment>The mark in front of a transition whose condition has changes that are not saved</extracomment>
        <translation>* %1</translation>
    </message>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (未保存)</translation>
    </message>
    <message>
        <source>empty</source>
        <extracomment>Stands in place of the number of rows of a condition; short, for a narrow column</extracomment>
        <translation>空</translation>
    </message>
    <message>
        <source>There is no condition yet</source>
        <translation>条件はまだありません</translation>
    </message>
    <message numerus="yes">
        <source>The condition has %n row(s) and group(s)</source>
        <translation>
            <numerusform>条件には行とグループが合わせて %n 個あります</numerusform>
        </translation>
    </message>
</context>
</TS>
