<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>連續
拍攝</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>List</source>
        <translation>清單</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重拍</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>View</source>
        <translation>檢視</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>影片 /
    相片</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>相片 /
    影片</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>貼上</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>載入</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>靜態畫面</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>找不到攝影機。</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>找不到麥克風。</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>找不到攝影機和麥克風。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>攝影機無法使用。請確認是否已正確連接。 </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>儲存失敗。</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>正在載入檔案。請稍候...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>檔案已載入。</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>載入失敗。</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>載入資料夾</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>按鍵</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>顯示本表，直到下次按鍵或觸碰</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>到下一個按鈕</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>回到上一個按鈕</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>按下按鈕</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>在清單中逐一移動</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>在清單中選擇或取消選擇</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>放大、縮小即時畫面</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>顯示整個即時畫面</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>將即時畫面旋轉90度</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>滑鼠滾輪</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>以指標為中心放大或縮小</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>兩根手指</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>在手指之間放大或縮小</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>拖曳</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>移動放大的即時畫面</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>複製顯示的內容</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>從提問或訊息返回</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>結束程式</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>空白鍵</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>即時</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>正在開啟攝影機。請稍候...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>不支援</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>攝影機和麥克風無法使用。請確認是否已正確連接。 </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>攝影機無法使用。請確認是否已正確連接。 </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>麥克風無法使用。請確認是否已正確連接。</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>即時畫面</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 秒後拍攝  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 秒後拍攝</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在錄影</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>請選擇裝置：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
<context>
    <name>CWaiteMsgDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>請稍候..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>失敗。</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>正在貼上。請稍候... 
</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>要儲存相片和影片嗎？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>自拍計時器：</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>連續拍攝：</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>張</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>確認拍攝的影像：</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>解析度：</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>儲存位置：</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>使用預設資料夾</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>使用其他資料夾</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>自拍計時器</translation>
    </message>
    <message>
        <source>second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>連續拍攝</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>張</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>確認拍攝的影像</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解析度</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>使用預設資料夾</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>使用其他資料夾</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>請指定儲存位置。</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>指定的路徑無效。</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>儲存位置</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>最多只能選取 9 個。</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>影片</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>相片</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>放大</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>影片</translation>
    </message>
</context>
<context>
    <name>WebcamUtil</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>磁碟空間不足。
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>拍攝已中止。請釋出磁碟空間。 </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>只要此資料夾是連結或並非您獨有，就無法拍攝：
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>實物攝影機</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>顯示、拍攝並錄製攝影機下的內容</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查詢位置:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>資料夾:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>選擇</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上層資料夾</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>建立新資料夾</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到該資料夾。
請確認資料夾名稱是否正確。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>電腦</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
</context>
</TS>
