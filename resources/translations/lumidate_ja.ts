<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>AppActions</name>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使った項目を開く(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>&amp;Small</source>
        <translation>小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>中(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Large</source>
        <translation>大(&amp;L)</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>情報を表示</translation>
    </message>
    <message>
        <source>Image Viewer</source>
        <translation>イメージビューア</translation>
    </message>
    <message>
        <source>Day Count Calculator</source>
        <translation>日数計算機</translation>
    </message>
    <message>
        <source>&amp;About Lumidate</source>
        <translation>Lumidate について(&amp;A)</translation>
    </message>
</context>
<context>
    <name>ChangeByIntervalSheet</name>
    <message>
        <source>Change by Interval</source>
        <translation>間隔で変更</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>モード:</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
</context>
<context>
    <name>ChangeControls</name>
    <message>
        <source>Mode:</source>
        <translation>モード:</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>モード</translation>
    </message>
</context>
<context>
    <name>DatePickerStepper</name>
    <message>
        <source>Stepper</source>
        <translation>ステッパー</translation>
    </message>
    <message>
        <source>Step Up</source>
        <translation>増やす</translation>
    </message>
    <message>
        <source>Step Down</source>
        <translation>減らす</translation>
    </message>
</context>
<context>
    <name>DatePickerWidget</name>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Millisecond</source>
        <translation>ミリ秒</translation>
    </message>
</context>
<context>
    <name>DayCalculatorWindow</name>
    <message>
        <source>First date:</source>
        <translation>最初の日付:</translation>
    </message>
    <message>
        <source>First date</source>
        <translation>最初の日付</translation>
    </message>
    <message>
        <source>Second date:</source>
        <translation>2番目の日付:</translation>
    </message>
    <message>
        <source>Second date</source>
        <translation>2番目の日付</translation>
    </message>
</context>
<context>
    <name>IFD</name>
    <message>
        <source>Byte Order</source>
        <translation>バイトオーダー</translation>
    </message>
    <message>
        <source>New Subfile Type</source>
        <translation>新サブファイルタイプ</translation>
    </message>
    <message>
        <source>Subfile Type</source>
        <translation>サブファイルタイプ</translation>
    </message>
    <message>
        <source>Image Width</source>
        <translation>画像の幅</translation>
    </message>
    <message>
        <source>Image Length</source>
        <translation>画像の高さ</translation>
    </message>
    <message>
        <source>Bits per Sample</source>
        <translation>画像のビットの深さ</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>圧縮の種類</translation>
    </message>
    <message>
        <source>Photometric Interpretation</source>
        <translation>画素構成</translation>
    </message>
    <message>
        <source>Threshholding</source>
        <translation>しきい値処理</translation>
    </message>
    <message>
        <source>Cell Width</source>
        <translation>セルの幅</translation>
    </message>
    <message>
        <source>Cell Length</source>
        <translation>セルの高さ</translation>
    </message>
    <message>
        <source>Fill Order</source>
        <translation>フィルオーダー</translation>
    </message>
    <message>
        <source>Document Name</source>
        <translation>ドキュメント名</translation>
    </message>
    <message>
        <source>Image Description</source>
        <translation>画像タイトル</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>メーカー</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Strip Offsets</source>
        <translation>画像データのロケーション</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>画像方向</translation>
    </message>
    <message>
        <source>Samples per Pixel</source>
        <translation>コンポーネント数</translation>
    </message>
    <message>
        <source>Rows per Strip</source>
        <translation>ストリップ中のライン数</translation>
    </message>
    <message>
        <source>Strip Byte Counts</source>
        <translation>ストリップのデータ量</translation>
    </message>
    <message>
        <source>Min Sample Value</source>
        <translation>最小サンプル値</translation>
    </message>
    <message>
        <source>Max Sample Value</source>
        <translation>最大サンプル値</translation>
    </message>
    <message>
        <source>X Resolution</source>
        <translation>画像の幅の解像度</translation>
    </message>
    <message>
        <source>Y Resolution</source>
        <translation>画像の高さの解像度</translation>
    </message>
    <message>
        <source>Planar Configuration</source>
        <translation>画像データの並び</translation>
    </message>
    <message>
        <source>Page Name</source>
        <translation>ページ名</translation>
    </message>
    <message>
        <source>X Position</source>
        <translation>X 位置</translation>
    </message>
    <message>
        <source>Y Position</source>
        <translation>Y 位置</translation>
    </message>
    <message>
        <source>Free Offsets</source>
        <translation>空き領域のオフセット</translation>
    </message>
    <message>
        <source>Free ByteCounts</source>
        <translation>空き領域のバイト数</translation>
    </message>
    <message>
        <source>Gray ResponseUnit</source>
        <translation>グレー応答単位</translation>
    </message>
    <message>
        <source>Gray ResponseCurve</source>
        <translation>グレー応答曲線</translation>
    </message>
    <message>
        <source>T4 Options</source>
        <translation>T4 オプション</translation>
    </message>
    <message>
        <source>T6 Options</source>
        <translation>T6 オプション</translation>
    </message>
    <message>
        <source>Resolution Unit</source>
        <translation>解像度の単位</translation>
    </message>
    <message>
        <source>Page Number</source>
        <translation>ページ番号</translation>
    </message>
    <message>
        <source>Transfer Function</source>
        <translation>再生階調カーブ特性</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>使用ソフトウェア名</translation>
    </message>
    <message>
        <source>Date Time</source>
        <translation>ファイル変更日時</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>作者名</translation>
    </message>
    <message>
        <source>Host Computer</source>
        <translation>ホストコンピュータ</translation>
    </message>
    <message>
        <source>Predictor</source>
        <translation>予測子</translation>
    </message>
    <message>
        <source>White Point</source>
        <translation>参照白色点の色度座標値</translation>
    </message>
    <message>
        <source>Primary Chromaticities</source>
        <translation>原色の色度座標値</translation>
    </message>
    <message>
        <source>Color Map</source>
        <translation>カラーマップ</translation>
    </message>
    <message>
        <source>Halftone Hints</source>
        <translation>ハーフトーンヒント</translation>
    </message>
    <message>
        <source>Tile Width</source>
        <translation>タイルの幅</translation>
    </message>
    <message>
        <source>Tile Length</source>
        <translation>タイルの高さ</translation>
    </message>
    <message>
        <source>Tile Offsets</source>
        <translation>タイルのオフセット</translation>
    </message>
    <message>
        <source>Tile Byte Counts</source>
        <translation>タイルのバイト数</translation>
    </message>
    <message>
        <source>Ink Set</source>
        <translation>インクセット</translation>
    </message>
    <message>
        <source>Ink Names</source>
        <translation>インク名</translation>
    </message>
    <message>
        <source>Number of Inks</source>
        <translation>インク数</translation>
    </message>
    <message>
        <source>Dot Range</source>
        <translation>ドット範囲</translation>
    </message>
    <message>
        <source>Target Printer</source>
        <translation>対象プリンタ</translation>
    </message>
    <message>
        <source>Extra Samples</source>
        <translation>追加サンプル</translation>
    </message>
    <message>
        <source>Sample Format</source>
        <translation>サンプル形式</translation>
    </message>
    <message>
        <source>S Min Sample Value</source>
        <translation>最小サンプル値 (S)</translation>
    </message>
    <message>
        <source>S Max Sample Value</source>
        <translation>最大サンプル値 (S)</translation>
    </message>
    <message>
        <source>Transfer Range</source>
        <translation>転送範囲</translation>
    </message>
    <message>
        <source>JPEG Proc</source>
        <translation>JPEG 処理方式</translation>
    </message>
    <message>
        <source>JPEG Interchange Format</source>
        <translation>JPEG の SOI へのオフセット</translation>
    </message>
    <message>
        <source>JPEG Interchange Format Lngth</source>
        <translation>JPEG データのバイト数</translation>
    </message>
    <message>
        <source>JPEG Restart Interval</source>
        <translation>JPEG リスタート間隔</translation>
    </message>
    <message>
        <source>JPEG Lossless Predictors</source>
        <translation>JPEG ロスレス予測子</translation>
    </message>
    <message>
        <source>JPEG Point Transforms</source>
        <translation>JPEG ポイント変換</translation>
    </message>
    <message>
        <source>JPEG Q Tables</source>
        <translation>JPEG 量子化テーブル</translation>
    </message>
    <message>
        <source>JPEG DC Tables</source>
        <translation>JPEG DC テーブル</translation>
    </message>
    <message>
        <source>JPEG AC Tables</source>
        <translation>JPEG AC テーブル</translation>
    </message>
    <message>
        <source>YCbCr Coefficients</source>
        <translation>色変換マトリクス係数</translation>
    </message>
    <message>
        <source>YCbCr SubSampling</source>
        <translation>YCC の画素構成 (C の間引き率)</translation>
    </message>
    <message>
        <source>YCbCr Positioning</source>
        <translation>YCC の画素構成 (Y と C の位置)</translation>
    </message>
    <message>
        <source>Reference Black White</source>
        <translation>参照黒色点値と参照白色点値</translation>
    </message>
    <message>
        <source>Strip Row Counts</source>
        <translation>ストリップの行数</translation>
    </message>
    <message>
        <source>XMP Data</source>
        <translation>XMP データ</translation>
    </message>
    <message>
        <source>Image ID</source>
        <translation>画像 ID</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>撮影著作権者</translation>
    </message>
    <message>
        <source>IPTC IIM</source>
        <translation>IPTC IIM</translation>
    </message>
    <message>
        <source>Photoshop</source>
        <translation>Photoshop</translation>
    </message>
    <message>
        <source>Exif</source>
        <translation>Exif</translation>
    </message>
    <message>
        <source>ICC Profile</source>
        <translation>ICC プロファイル</translation>
    </message>
    <message>
        <source>Image Layer</source>
        <translation>画像レイヤー</translation>
    </message>
    <message>
        <source>GPS</source>
        <translation>GPS</translation>
    </message>
    <message>
        <source>Time Zone Offset</source>
        <translation>タイムゾーンオフセット</translation>
    </message>
    <message>
        <source>TIFF/EP StandardID</source>
        <translation>TIFF/EP 規格 ID</translation>
    </message>
    <message>
        <source>Image Source Data</source>
        <translation>画像ソースデータ</translation>
    </message>
    <message>
        <source>Print Image Matching</source>
        <translation>プリントイメージマッチング</translation>
    </message>
    <message>
        <source>Maker Note Safety</source>
        <translation>メーカーノートの安全性</translation>
    </message>
    <message>
        <source>Unknown2 0xC6D2</source>
        <translation>不明2 0xC6D2</translation>
    </message>
    <message>
        <source>Unknown3 0xC6D3</source>
        <translation>不明3 0xC6D3</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>露出時間</translation>
    </message>
    <message>
        <source>F Number</source>
        <translation>F値</translation>
    </message>
    <message>
        <source>Exposure Program</source>
        <translation>露出プログラム</translation>
    </message>
    <message>
        <source>Spectral Sensitivity</source>
        <translation>スペクトル感度</translation>
    </message>
    <message>
        <source>ISO Speed Ratings</source>
        <translation>ISO スピードレート</translation>
    </message>
    <message>
        <source>OECF</source>
        <translation>光電変換関数</translation>
    </message>
    <message>
        <source>Self Timer Mode</source>
        <translation>セルフタイマーモード</translation>
    </message>
    <message>
        <source>Sensitivity Type</source>
        <translation>感度種別</translation>
    </message>
    <message>
        <source>SOS (Standard Output Sensitivity)</source>
        <translation>標準出力感度 (SOS)</translation>
    </message>
    <message>
        <source>REI (Recommended Exposure Index)</source>
        <translation>推奨露光指数 (REI)</translation>
    </message>
    <message>
        <source>ISO Speed</source>
        <translation>ISO スピード</translation>
    </message>
    <message>
        <source>ISO Speed Latitude yyy</source>
        <translation>ISO スピードラチチュード yyy</translation>
    </message>
    <message>
        <source>ISO Speed Latitude zzz</source>
        <translation>ISO スピードラチチュード zzz</translation>
    </message>
    <message>
        <source>Exif Version</source>
        <translation>Exif バージョン</translation>
    </message>
    <message>
        <source>Date Time Original</source>
        <translation>撮影日時</translation>
    </message>
    <message>
        <source>Date Time Digitized</source>
        <translation>デジタル化日時</translation>
    </message>
    <message>
        <source>Google Plus Upload Code</source>
        <translation>Google Plus アップロードコード</translation>
    </message>
    <message>
        <source>Offset Time</source>
        <translation>時差 (ファイル変更日時)</translation>
    </message>
    <message>
        <source>Offset Time Original</source>
        <translation>時差 (撮影日時)</translation>
    </message>
    <message>
        <source>Offset Time Digitized</source>
        <translation>時差 (デジタル化日時)</translation>
    </message>
    <message>
        <source>Components Configuration</source>
        <translation>各コンポーネントの意味</translation>
    </message>
    <message>
        <source>Compressed Bits per Pixel</source>
        <translation>画像圧縮モード</translation>
    </message>
    <message>
        <source>Shutter Speed Value</source>
        <translation>シャッタースピード</translation>
    </message>
    <message>
        <source>Aperture Value</source>
        <translation>絞り値</translation>
    </message>
    <message>
        <source>Brightness Value</source>
        <translation>輝度値</translation>
    </message>
    <message>
        <source>Exposure Bias Value</source>
        <translation>露光補正値</translation>
    </message>
    <message>
        <source>Max Aperture Value</source>
        <translation>レンズ最小F値</translation>
    </message>
    <message>
        <source>Subject Distance</source>
        <translation>被写体距離</translation>
    </message>
    <message>
        <source>Metering Mode</source>
        <translation>測光方式</translation>
    </message>
    <message>
        <source>Light Source</source>
        <translation>光源</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>フラッシュ</translation>
    </message>
    <message>
        <source>Focal Length</source>
        <translation>レンズ焦点距離</translation>
    </message>
    <message>
        <source>Subject Area</source>
        <translation>被写体領域</translation>
    </message>
    <message>
        <source>Maker Note</source>
        <translation>メーカーノート</translation>
    </message>
    <message>
        <source>User Comment</source>
        <translation>ユーザーコメント</translation>
    </message>
    <message>
        <source>Subsecond Time</source>
        <translation>ファイル変更日時の秒以下</translation>
    </message>
    <message>
        <source>Subsecond Time Original</source>
        <translation>撮影日時の秒以下</translation>
    </message>
    <message>
        <source>Subsecond Time Digitized</source>
        <translation>デジタル化日時の秒以下</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>湿度</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>気圧</translation>
    </message>
    <message>
        <source>Water Depth</source>
        <translation>水深</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>加速度</translation>
    </message>
    <message>
        <source>Camera Elevation Angle</source>
        <translation>カメラの仰俯角</translation>
    </message>
    <message>
        <source>Flashpix Version</source>
        <translation>対応 Flashpix バージョン</translation>
    </message>
    <message>
        <source>Color Space</source>
        <translation>色空間情報</translation>
    </message>
    <message>
        <source>Pixel X Dimension</source>
        <translation>実効画像の幅</translation>
    </message>
    <message>
        <source>Pixel Y Dimension</source>
        <translation>実効画像の高さ</translation>
    </message>
    <message>
        <source>Related Sound File</source>
        <translation>関連音声ファイル</translation>
    </message>
    <message>
        <source>DCF Interoperability Data</source>
        <translation>互換性 IFD へのポインタ</translation>
    </message>
    <message>
        <source>Flash Energy</source>
        <translation>フラッシュ強度</translation>
    </message>
    <message>
        <source>Spatial Frequency Response</source>
        <translation>空間周波数応答</translation>
    </message>
    <message>
        <source>Focal Plane X Resolution</source>
        <translation>焦点面の幅の解像度</translation>
    </message>
    <message>
        <source>Focal Plane Y Resolution</source>
        <translation>焦点面の高さの解像度</translation>
    </message>
    <message>
        <source>Focal Plane Resolution Unit</source>
        <translation>焦点面解像度単位</translation>
    </message>
    <message>
        <source>Subject Location</source>
        <translation>被写体位置</translation>
    </message>
    <message>
        <source>Exposure Index</source>
        <translation>露出インデックス</translation>
    </message>
    <message>
        <source>Sensing Method</source>
        <translation>センサー方式</translation>
    </message>
    <message>
        <source>File Source</source>
        <translation>ファイルソース</translation>
    </message>
    <message>
        <source>Scene Type</source>
        <translation>シーンタイプ</translation>
    </message>
    <message>
        <source>CFA Pattern</source>
        <translation>CFA パターン</translation>
    </message>
    <message>
        <source>Custom Rendered</source>
        <translation>個別画像処理</translation>
    </message>
    <message>
        <source>Exposure Mode</source>
        <translation>露出モード</translation>
    </message>
    <message>
        <source>White Balance</source>
        <translation>ホワイトバランス</translation>
    </message>
    <message>
        <source>Digital Zoom Ratio</source>
        <translation>デジタルズーム倍率</translation>
    </message>
    <message>
        <source>Focal Length in 35mm Film</source>
        <translation>35mm 換算レンズ焦点距離</translation>
    </message>
    <message>
        <source>Scene Capture Type</source>
        <translation>撮影シーンタイプ</translation>
    </message>
    <message>
        <source>Gain Control</source>
        <translation>ゲイン制御</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>撮影コントラスト</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>撮影彩度</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>撮影シャープネス</translation>
    </message>
    <message>
        <source>Device Setting Description</source>
        <translation>撮影条件記述情報</translation>
    </message>
    <message>
        <source>Subject Distance Range</source>
        <translation>被写体距離レンジ</translation>
    </message>
    <message>
        <source>Image Unique ID</source>
        <translation>画像固有 ID</translation>
    </message>
    <message>
        <source>Camera Owner Name</source>
        <translation>カメラ所有者名</translation>
    </message>
    <message>
        <source>Body Serial Number</source>
        <translation>カメラシリアル番号</translation>
    </message>
    <message>
        <source>Lens Specification</source>
        <translation>レンズの仕様情報</translation>
    </message>
    <message>
        <source>Lens Make</source>
        <translation>レンズのメーカー名</translation>
    </message>
    <message>
        <source>Lens Model</source>
        <translation>レンズのモデル名</translation>
    </message>
    <message>
        <source>Lens Serial Number</source>
        <translation>レンズシリアル番号</translation>
    </message>
    <message>
        <source>Image Title</source>
        <translation>画像タイトル (Exif)</translation>
    </message>
    <message>
        <source>Photographer</source>
        <translation>撮影者</translation>
    </message>
    <message>
        <source>Image Editor</source>
        <translation>画像編集者</translation>
    </message>
    <message>
        <source>Camera Firmware</source>
        <translation>カメラファームウェア</translation>
    </message>
    <message>
        <source>RAW Developing Software</source>
        <translation>RAW 現像ソフトウェア</translation>
    </message>
    <message>
        <source>Image Editing Software</source>
        <translation>画像編集ソフトウェア</translation>
    </message>
    <message>
        <source>Metadata Editing Software</source>
        <translation>メタデータ編集ソフトウェア</translation>
    </message>
    <message>
        <source>Composite Image</source>
        <translation>合成画像</translation>
    </message>
    <message>
        <source>Source Image Number of Composite Image</source>
        <translation>合成画像の元画像数</translation>
    </message>
    <message>
        <source>Source Exposure Times of Composite Image</source>
        <translation>合成画像の元画像の露出時間</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>再生ガンマ</translation>
    </message>
    <message>
        <source>Interoperability Index</source>
        <translation>互換性識別子</translation>
    </message>
    <message>
        <source>Interoperability Version</source>
        <translation>互換性バージョン</translation>
    </message>
    <message>
        <source>Related Image File Format</source>
        <translation>関連画像ファイル形式</translation>
    </message>
    <message>
        <source>Related Image Width</source>
        <translation>関連画像の幅</translation>
    </message>
    <message>
        <source>Related Image Length</source>
        <translation>関連画像の高さ</translation>
    </message>
    <message>
        <source>GPS Version</source>
        <translation>GPS タグのバージョン</translation>
    </message>
    <message>
        <source>GPS Latitude Reference</source>
        <translation>北緯 (N) または南緯 (S)</translation>
    </message>
    <message>
        <source>GPS Latitude</source>
        <translation>緯度</translation>
    </message>
    <message>
        <source>GPS Longitude Reference</source>
        <translation>東経 (E) または西経 (W)</translation>
    </message>
    <message>
        <source>GPS Longitude</source>
        <translation>経度</translation>
    </message>
    <message>
        <source>GPS Altitude Reference</source>
        <translation>高度の基準</translation>
    </message>
    <message>
        <source>GPS Altitude</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>GPS Time Stamp</source>
        <translation>GPS の時間 (原子時計)</translation>
    </message>
    <message>
        <source>GPS Satellites</source>
        <translation>測位に使用した GPS 衛星</translation>
    </message>
    <message>
        <source>GPS Status</source>
        <translation>GPS 受信機の状態</translation>
    </message>
    <message>
        <source>GPS Measure Mode</source>
        <translation>GPS の測位方法</translation>
    </message>
    <message>
        <source>GPS DOP</source>
        <translation>測位の信頼性</translation>
    </message>
    <message>
        <source>GPS Speed Reference</source>
        <translation>速度の単位</translation>
    </message>
    <message>
        <source>GPS Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>GPS Track Reference</source>
        <translation>進行方向の基準</translation>
    </message>
    <message>
        <source>GPS Track</source>
        <translation>進行方向</translation>
    </message>
    <message>
        <source>GPS Image Direction Reference</source>
        <translation>撮影した画像の方向の基準</translation>
    </message>
    <message>
        <source>GPS Image Direction</source>
        <translation>撮影した画像の方向</translation>
    </message>
    <message>
        <source>GPS Map Datum</source>
        <translation>測位に用いた地図データ</translation>
    </message>
    <message>
        <source>GPS Destination Latitude Reference</source>
        <translation>目的地の北緯 (N) または南緯 (S)</translation>
    </message>
    <message>
        <source>GPS Destination Latitude</source>
        <translation>目的地の緯度</translation>
    </message>
    <message>
        <source>GPS Destination Longitude Reference</source>
        <translation>目的地の東経 (E) または西経 (W)</translation>
    </message>
    <message>
        <source>GPS Destination Longitude</source>
        <translation>目的地の経度</translation>
    </message>
    <message>
        <source>GPS Destination Bearing Reference</source>
        <translation>目的地の方角の基準</translation>
    </message>
    <message>
        <source>GPS Destination Bearing</source>
        <translation>目的地の方角</translation>
    </message>
    <message>
        <source>GPS Destination Distance Reference</source>
        <translation>目的地までの距離の単位</translation>
    </message>
    <message>
        <source>GPS Destination Distance</source>
        <translation>目的地までの距離</translation>
    </message>
    <message>
        <source>GPS Processing Method</source>
        <translation>測位方式の名称</translation>
    </message>
    <message>
        <source>GPS Area Information</source>
        <translation>測位地点の名称</translation>
    </message>
    <message>
        <source>GPS Date Stamp</source>
        <translation>GPS 日付</translation>
    </message>
    <message>
        <source>GPS Differential</source>
        <translation>GPS 補正測位</translation>
    </message>
    <message>
        <source>GPS HPositioning Error</source>
        <translation>水平方向測位誤差</translation>
    </message>
    <message>
        <source>Uncompressed</source>
        <translation>非圧縮</translation>
    </message>
    <message>
        <source>LZW</source>
        <translation>LZW</translation>
    </message>
    <message>
        <source>JPEG Compression</source>
        <translation>JPEG 圧縮</translation>
    </message>
    <message>
        <source>NEXT</source>
        <translation>NeXT</translation>
    </message>
    <message>
        <source>PackBits</source>
        <translation>PackBits</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>グレースケール</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>Palette Color</source>
        <translation>パレットカラー</translation>
    </message>
    <message>
        <source>Transparency Mask</source>
        <translation>透明マスク</translation>
    </message>
    <message>
        <source>CMYK</source>
        <translation>CMYK</translation>
    </message>
    <message>
        <source>YCbCr</source>
        <translation>YCbCr</translation>
    </message>
    <message>
        <source>Lab</source>
        <translation>Lab</translation>
    </message>
    <message>
        <source>1 Top-Left</source>
        <translation>1 左上</translation>
    </message>
    <message>
        <source>2 Top-Right</source>
        <translation>2 右上</translation>
    </message>
    <message>
        <source>3 Bottom-Right</source>
        <translation>3 右下</translation>
    </message>
    <message>
        <source>4 Bottom-Left</source>
        <translation>4 左下</translation>
    </message>
    <message>
        <source>5 Left-Top</source>
        <translation>5 左上 (回転)</translation>
    </message>
    <message>
        <source>6 Right-Top</source>
        <translation>6 右上 (回転)</translation>
    </message>
    <message>
        <source>7 Right-Bottom</source>
        <translation>7 右下 (回転)</translation>
    </message>
    <message>
        <source>8 Left-Bottom</source>
        <translation>8 左下 (回転)</translation>
    </message>
    <message>
        <source>Chunky Format</source>
        <translation>点順次フォーマット</translation>
    </message>
    <message>
        <source>Planar Format</source>
        <translation>面順次フォーマット</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>centimeters</source>
        <translation>センチメートル</translation>
    </message>
    <message>
        <source>Non</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Horizontal differencing</source>
        <translation>水平差分</translation>
    </message>
    <message>
        <source>Floating point horizontal differencing</source>
        <translation>浮動小数点水平差分</translation>
    </message>
    <message>
        <source>Centered</source>
        <translation>中心</translation>
    </message>
    <message>
        <source>Co-sited</source>
        <translation>一致</translation>
    </message>
    <message>
        <source>Unsafe</source>
        <translation>安全でない</translation>
    </message>
    <message>
        <source>Safe</source>
        <translation>安全</translation>
    </message>
    <message>
        <source>Not Defined</source>
        <translation>未定義</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Normal Program</source>
        <translation>ノーマルプログラム</translation>
    </message>
    <message>
        <source>Aperture Priority</source>
        <translation>絞り優先</translation>
    </message>
    <message>
        <source>Shutter Priority</source>
        <translation>シャッター優先</translation>
    </message>
    <message>
        <source>Creative Program</source>
        <translation>クリエイティブプログラム (被写界深度優先)</translation>
    </message>
    <message>
        <source>Action Program</source>
        <translation>アクションプログラム (シャッタースピード優先)</translation>
    </message>
    <message>
        <source>Portrait Mode</source>
        <translation>ポートレートモード</translation>
    </message>
    <message>
        <source>Landscape Mode</source>
        <translation>風景モード</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>SOS and REI</source>
        <translation>SOS と REI</translation>
    </message>
    <message>
        <source>SOS and ISO Speed</source>
        <translation>SOS と ISO スピード</translation>
    </message>
    <message>
        <source>REI and ISO Speed</source>
        <translation>REI と ISO スピード</translation>
    </message>
    <message>
        <source>SOS, REI and ISO Speed</source>
        <translation>SOS、REI と ISO スピード</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Center Weighted Average</source>
        <translation>中央重点</translation>
    </message>
    <message>
        <source>Spot</source>
        <translation>スポット</translation>
    </message>
    <message>
        <source>Multi-Spot</source>
        <translation>マルチスポット</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>分割測光</translation>
    </message>
    <message>
        <source>Partial</source>
        <translation>部分測光</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Daylight</source>
        <translation>昼光</translation>
    </message>
    <message>
        <source>Fluorescent</source>
        <translation>蛍光灯</translation>
    </message>
    <message>
        <source>Tungsten</source>
        <translation>タングステン (白熱灯)</translation>
    </message>
    <message>
        <source>Fine Weather</source>
        <translation>晴天</translation>
    </message>
    <message>
        <source>Cloudy Weather</source>
        <translation>曇天</translation>
    </message>
    <message>
        <source>Shade</source>
        <translation>日陰</translation>
    </message>
    <message>
        <source>Daylight Fluorescent</source>
        <translation>昼光色蛍光灯</translation>
    </message>
    <message>
        <source>Standard Light A</source>
        <translation>標準光 A</translation>
    </message>
    <message>
        <source>Standard Light B</source>
        <translation>標準光 B</translation>
    </message>
    <message>
        <source>Standard Light C</source>
        <translation>標準光 C</translation>
    </message>
    <message>
        <source>D55</source>
        <translation>D55</translation>
    </message>
    <message>
        <source>D65</source>
        <translation>D65</translation>
    </message>
    <message>
        <source>D75</source>
        <translation>D75</translation>
    </message>
    <message>
        <source>D50</source>
        <translation>D50</translation>
    </message>
    <message>
        <source>ISO Studio Tungsten</source>
        <translation>ISO スタジオタングステン</translation>
    </message>
    <message>
        <source>Other Light Source</source>
        <translation>その他の光源</translation>
    </message>
    <message>
        <source>Day White Fluorescent</source>
        <translation>昼白色蛍光灯</translation>
    </message>
    <message>
        <source>Cool White Fluorescent</source>
        <translation>白色蛍光灯</translation>
    </message>
    <message>
        <source>White Fluorescent</source>
        <translation>温白色蛍光灯</translation>
    </message>
    <message>
        <source>Day White Fluorescent 0230</source>
        <translation>昼白色蛍光灯</translation>
    </message>
    <message>
        <source>Cool White Fluorescent 0230</source>
        <translation>白色蛍光灯</translation>
    </message>
    <message>
        <source>White Fluorescent 0230</source>
        <translation>温白色蛍光灯</translation>
    </message>
    <message>
        <source>Warm White Fluorescent</source>
        <translation>電球色蛍光灯</translation>
    </message>
    <message>
        <source>Did not Fire</source>
        <translation>発光せず</translation>
    </message>
    <message>
        <source>Fired</source>
        <translation>発光</translation>
    </message>
    <message>
        <source>Fired, Return Light not Detected</source>
        <translation>発光、反射光を検出せず</translation>
    </message>
    <message>
        <source>Fired, Return Light Detected</source>
        <translation>発光、反射光を検出</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode</source>
        <translation>発光、強制発光モード</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Return Light not Detected</source>
        <translation>発光、強制発光モード、反射光を検出せず</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Return Light Detected</source>
        <translation>発光、強制発光モード、反射光を検出</translation>
    </message>
    <message>
        <source>Did not Fire, Compulsory Flash Suppression Mode</source>
        <translation>発光せず、強制非発光モード</translation>
    </message>
    <message>
        <source>Did not Fire, Auto Mode</source>
        <translation>発光せず、オートモード</translation>
    </message>
    <message>
        <source>Fired, Auto Mode</source>
        <translation>発光、オートモード</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light not Detected</source>
        <translation>発光、オートモード、反射光を検出せず</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light Detected</source>
        <translation>発光、オートモード、反射光を検出</translation>
    </message>
    <message>
        <source>No Flash Function</source>
        <translation>フラッシュ機能なし</translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode</source>
        <translation>発光、赤目軽減モード</translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode, Return Light not Detected</source>
        <translation>発光、赤目軽減モード、反射光を検出せず</translation>
    </message>
    <message>
        <source>Fired, Red-eye Reduction Mode, Return Light Detected</source>
        <translation>発光、赤目軽減モード、反射光を検出</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode</source>
        <translation>発光、強制発光モード、赤目軽減モード</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light not Detected</source>
        <translation>発光、強制発光モード、赤目軽減モード、反射光を検出せず</translation>
    </message>
    <message>
        <source>Fired, Compulsory Flash Mode, Red-eye Reduction Mode, Return Light Detected</source>
        <translation>発光、強制発光モード、赤目軽減モード、反射光を検出</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Red-eye Reduction Mode</source>
        <translation>発光、オートモード、赤目軽減モード</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light not Detected, Red-eye Reduction Mode</source>
        <translation>発光、オートモード、反射光を検出せず、赤目軽減モード</translation>
    </message>
    <message>
        <source>Fired, Auto Mode, Return Light Detected, Red-eye Reduction Mode</source>
        <translation>発光、オートモード、反射光を検出、赤目軽減モード</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB</translation>
    </message>
    <message>
        <source>Uncalibrated</source>
        <translation>未補正</translation>
    </message>
    <message>
        <source>One-Chip Color Area Sensor</source>
        <translation>単板式カラーセンサー</translation>
    </message>
    <message>
        <source>Two-Chip Color Area Sensor</source>
        <translation>2 板式カラーセンサー</translation>
    </message>
    <message>
        <source>Three-Chip Color Area Sensor</source>
        <translation>3 板式カラーセンサー</translation>
    </message>
    <message>
        <source>Color Sequential Area Sensor</source>
        <translation>色順次カラーセンサー</translation>
    </message>
    <message>
        <source>Trilinear Sensor</source>
        <translation>3 線リニアセンサー</translation>
    </message>
    <message>
        <source>Color Sequential Linear Sensor</source>
        <translation>色順次リニアセンサー</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Scanner of Transparent Type</source>
        <translation>透過型スキャナ</translation>
    </message>
    <message>
        <source>Scanner of Reflex Type</source>
        <translation>反射型スキャナ</translation>
    </message>
    <message>
        <source>DSC</source>
        <translation>デジタルスチルカメラ</translation>
    </message>
    <message>
        <source>Directly Photographed Image</source>
        <translation>直接撮影された画像</translation>
    </message>
    <message>
        <source>Normal Process</source>
        <translation>通常処理</translation>
    </message>
    <message>
        <source>Custom Process</source>
        <translation>特殊処理</translation>
    </message>
    <message>
        <source>Auto Exposure</source>
        <translation>自動露出</translation>
    </message>
    <message>
        <source>Manual Exposure</source>
        <translation>マニュアル露出</translation>
    </message>
    <message>
        <source>Auto Bracket</source>
        <translation>オートブラケット</translation>
    </message>
    <message>
        <source>Auto White Balance</source>
        <translation>オートホワイトバランス</translation>
    </message>
    <message>
        <source>Manual White Balance</source>
        <translation>マニュアルホワイトバランス</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>風景</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>人物</translation>
    </message>
    <message>
        <source>Night Scene</source>
        <translation>夜景</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Low Gain Up</source>
        <translation>低ゲインアップ</translation>
    </message>
    <message>
        <source>High Gain Up</source>
        <translation>高ゲインアップ</translation>
    </message>
    <message>
        <source>Low Gain Down</source>
        <translation>低ゲインダウン</translation>
    </message>
    <message>
        <source>High Gain Down</source>
        <translation>高ゲインダウン</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Soft</source>
        <translation>軟調</translation>
    </message>
    <message>
        <source>Hard</source>
        <translation>硬調</translation>
    </message>
    <message>
        <source>Low Saturation</source>
        <translation>低彩度</translation>
    </message>
    <message>
        <source>High Saturation</source>
        <translation>高彩度</translation>
    </message>
    <message>
        <source>Soft Sharpness</source>
        <translation>弱</translation>
    </message>
    <message>
        <source>Hard Sharpness</source>
        <translation>強</translation>
    </message>
    <message>
        <source>Macro</source>
        <translation>マクロ</translation>
    </message>
    <message>
        <source>Close View</source>
        <translation>近景</translation>
    </message>
    <message>
        <source>Distant View</source>
        <translation>遠景</translation>
    </message>
    <message>
        <source>Non-Composite Image</source>
        <translation>非合成画像</translation>
    </message>
    <message>
        <source>General Composite Image</source>
        <translation>一般合成画像</translation>
    </message>
    <message>
        <source>Composite Image Captured When Shooting Reserved</source>
        <translation>撮影時合成画像</translation>
    </message>
    <message>
        <source>YCbCr 4:2:2</source>
        <translation>YCbCr 4:2:2</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0</source>
        <translation>YCbCr 4:2:0</translation>
    </message>
    <message>
        <source>JFIF Version</source>
        <translation>JFIF バージョン</translation>
    </message>
    <message>
        <source>Density Unit</source>
        <translation>密度単位</translation>
    </message>
    <message>
        <source>X Density</source>
        <translation>水平密度</translation>
    </message>
    <message>
        <source>Y Density</source>
        <translation>垂直密度</translation>
    </message>
    <message>
        <source>Thumbnail Width</source>
        <translation>サムネイルの幅</translation>
    </message>
    <message>
        <source>Thumbnail Height</source>
        <translation>サムネイルの高さ</translation>
    </message>
    <message>
        <source>No Units</source>
        <translation>単位なし</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>ドット/インチ</translation>
    </message>
    <message>
        <source>Dots per cm</source>
        <translation>ドット/cm</translation>
    </message>
    <message>
        <source>Little Endian</source>
        <translation>リトルエンディアン</translation>
    </message>
    <message>
        <source>Big Endian</source>
        <translation>ビッグエンディアン</translation>
    </message>
    <message>
        <source>Photographic Sensitivity</source>
        <translation>撮影感度</translation>
    </message>
    <message>
        <source>above sea level</source>
        <translation>(海抜)</translation>
    </message>
    <message>
        <source>below sea level</source>
        <translation>(海面下)</translation>
    </message>
    <message>
        <source>Above Sea Level</source>
        <translation>海面より上</translation>
    </message>
    <message>
        <source>Below Sea Level</source>
        <translation>海面より下</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Container</source>
        <translation>コンテナ</translation>
    </message>
    <message>
        <source>APP1 segment</source>
        <translation>APP1 セグメント</translation>
    </message>
    <message>
        <source>embedded JPEG&apos;s APP1 segment</source>
        <translation>埋め込み JPEG の APP1 セグメント</translation>
    </message>
    <message>
        <source>Exif item</source>
        <translation>Exif アイテム</translation>
    </message>
    <message>
        <source>CMT1 box</source>
        <translation>CMT1 ボックス</translation>
    </message>
    <message>
        <source>CMT2 box</source>
        <translation>CMT2 ボックス</translation>
    </message>
    <message>
        <source>eXIf chunk</source>
        <translation>eXIf チャンク</translation>
    </message>
    <message>
        <source>EXIF chunk</source>
        <translation>EXIF チャンク</translation>
    </message>
    <message>
        <source>TIFF structure</source>
        <translation>TIFF 構造</translation>
    </message>
    <message>
        <source>embedded preview JPEG&apos;s APP1 segment</source>
        <translation>埋め込みプレビュー JPEG の APP1 セグメント</translation>
    </message>
</context>
<context>
    <name>IPTC</name>
    <message>
        <source>IIM Envelope Record Version</source>
        <translation>エンベロープレコードのバージョン</translation>
    </message>
    <message>
        <source>IIM Destination</source>
        <translation>宛先</translation>
    </message>
    <message>
        <source>IIM File Format</source>
        <translation>ファイル形式</translation>
    </message>
    <message>
        <source>IIM File Format Version</source>
        <translation>ファイル形式のバージョン</translation>
    </message>
    <message>
        <source>IIM Service Identifier</source>
        <translation>サービス識別子</translation>
    </message>
    <message>
        <source>IIM Envelope Number</source>
        <translation>エンベロープ番号</translation>
    </message>
    <message>
        <source>IIM Product ID</source>
        <translation>製品 ID</translation>
    </message>
    <message>
        <source>IIM Envelope Priority</source>
        <translation>エンベロープの優先度</translation>
    </message>
    <message>
        <source>IIM Date Sent</source>
        <translation>送信日</translation>
    </message>
    <message>
        <source>IIM Time Sent</source>
        <translation>送信時刻</translation>
    </message>
    <message>
        <source>IIM Coded Character Set</source>
        <translation>文字コード</translation>
    </message>
    <message>
        <source>IIM UNO</source>
        <translation>固有名 (UNO)</translation>
    </message>
    <message>
        <source>IIM ARM Identifier</source>
        <translation>ARM 識別子</translation>
    </message>
    <message>
        <source>IIM ARM Version</source>
        <translation>ARM バージョン</translation>
    </message>
    <message>
        <source>IIM Application Record Version</source>
        <translation>アプリケーションレコードのバージョン</translation>
    </message>
    <message>
        <source>IIM Object Type Reference</source>
        <translation>オブジェクトタイプ参照</translation>
    </message>
    <message>
        <source>IIM Object Attribute Reference</source>
        <translation>オブジェクト属性参照</translation>
    </message>
    <message>
        <source>IIM Object Name</source>
        <translation>オブジェクト名</translation>
    </message>
    <message>
        <source>IIM Edit Status</source>
        <translation>編集状態</translation>
    </message>
    <message>
        <source>IIM Editorial Update</source>
        <translation>編集上の更新</translation>
    </message>
    <message>
        <source>IIM Urgency</source>
        <translation>緊急度</translation>
    </message>
    <message>
        <source>IIM Subject Reference</source>
        <translation>サブジェクト参照</translation>
    </message>
    <message>
        <source>IIM Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>IIM Supplemental Category</source>
        <translation>補助カテゴリ</translation>
    </message>
    <message>
        <source>IIM Fixture Identifier</source>
        <translation>定期記事識別子</translation>
    </message>
    <message>
        <source>IIM Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>IIM Content Location Code</source>
        <translation>内容の場所コード</translation>
    </message>
    <message>
        <source>IIM Content Location Name</source>
        <translation>内容の場所名</translation>
    </message>
    <message>
        <source>IIM Release Date</source>
        <translation>公開日</translation>
    </message>
    <message>
        <source>IIM Release Time</source>
        <translation>公開時刻</translation>
    </message>
    <message>
        <source>IIM Expiration Date</source>
        <translation>有効期限日</translation>
    </message>
    <message>
        <source>IIM Expiration Time</source>
        <translation>有効期限時刻</translation>
    </message>
    <message>
        <source>IIM Special Instructions</source>
        <translation>特別な指示</translation>
    </message>
    <message>
        <source>IIM Action Advised</source>
        <translation>推奨される処置</translation>
    </message>
    <message>
        <source>IIM Reference Service</source>
        <translation>参照サービス</translation>
    </message>
    <message>
        <source>IIM Reference Date</source>
        <translation>参照日</translation>
    </message>
    <message>
        <source>IIM Reference Number</source>
        <translation>参照番号</translation>
    </message>
    <message>
        <source>IIM Date Created</source>
        <translation>作成日</translation>
    </message>
    <message>
        <source>IIM Time Created</source>
        <translation>作成時刻</translation>
    </message>
    <message>
        <source>IIM Digital Creation Date</source>
        <translation>デジタル作成日</translation>
    </message>
    <message>
        <source>IIM Digital Creation Time</source>
        <translation>デジタル作成時刻</translation>
    </message>
    <message>
        <source>IIM Originating Program</source>
        <translation>作成プログラム</translation>
    </message>
    <message>
        <source>IIM Program Version</source>
        <translation>プログラムのバージョン</translation>
    </message>
    <message>
        <source>IIM Object Cycle</source>
        <translation>オブジェクトサイクル</translation>
    </message>
    <message>
        <source>IIM By-line</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>IIM By-line Title</source>
        <translation>作者の肩書き</translation>
    </message>
    <message>
        <source>IIM City</source>
        <translation>市区町村</translation>
    </message>
    <message>
        <source>IIM Sublocation</source>
        <translation>地区</translation>
    </message>
    <message>
        <source>IIM Province/State</source>
        <translation>都道府県/州</translation>
    </message>
    <message>
        <source>IIM Country Code</source>
        <translation>国コード</translation>
    </message>
    <message>
        <source>IIM Country</source>
        <translation>国名</translation>
    </message>
    <message>
        <source>IIM Transmission Reference</source>
        <translation>送信参照</translation>
    </message>
    <message>
        <source>IIM Headline</source>
        <translation>見出し</translation>
    </message>
    <message>
        <source>IIM Credit</source>
        <translation>クレジット</translation>
    </message>
    <message>
        <source>IIM Source</source>
        <translation>提供元</translation>
    </message>
    <message>
        <source>IIM Copyright Notice</source>
        <translation>著作権表示</translation>
    </message>
    <message>
        <source>IIM Contact</source>
        <translation>連絡先</translation>
    </message>
    <message>
        <source>IIM Caption</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>IIM Writer</source>
        <translation>説明の作成者</translation>
    </message>
    <message>
        <source>IIM Rasterized Caption</source>
        <translation>ラスタライズされた説明</translation>
    </message>
    <message>
        <source>IIM Image Type</source>
        <translation>画像タイプ</translation>
    </message>
    <message>
        <source>IIM Image Orientation</source>
        <translation>画像の向き</translation>
    </message>
    <message>
        <source>IIM Language Identifier</source>
        <translation>言語識別子</translation>
    </message>
    <message>
        <source>IIM Audio Type</source>
        <translation>オーディオタイプ</translation>
    </message>
    <message>
        <source>IIM Audio Sampling Rate</source>
        <translation>オーディオのサンプリングレート</translation>
    </message>
    <message>
        <source>IIM Audio Sampling Resolution</source>
        <translation>オーディオのサンプリング解像度</translation>
    </message>
    <message>
        <source>IIM Audio Duration</source>
        <translation>オーディオの長さ</translation>
    </message>
    <message>
        <source>IIM Audio Outcue</source>
        <translation>オーディオの終了キュー</translation>
    </message>
    <message>
        <source>IIM Object Data Preview File Format</source>
        <translation>プレビューのファイル形式</translation>
    </message>
    <message>
        <source>IIM Object Data Preview File Format Version</source>
        <translation>プレビューのファイル形式のバージョン</translation>
    </message>
    <message>
        <source>IIM Object Data Preview Data</source>
        <translation>プレビューデータ</translation>
    </message>
    <message>
        <source>IIM NewsPhoto Record Version</source>
        <translation>ニュース写真レコードのバージョン</translation>
    </message>
    <message>
        <source>IIM Picture Number</source>
        <translation>写真番号</translation>
    </message>
    <message>
        <source>IIM Image Width</source>
        <translation>画像の幅</translation>
    </message>
    <message>
        <source>IIM Image Height</source>
        <translation>画像の高さ</translation>
    </message>
    <message>
        <source>IIM Pixel Width</source>
        <translation>ピクセルの幅</translation>
    </message>
    <message>
        <source>IIM Pixel Height</source>
        <translation>ピクセルの高さ</translation>
    </message>
    <message>
        <source>IIM Supplement Type</source>
        <translation>補足タイプ</translation>
    </message>
    <message>
        <source>IIM Color Representation</source>
        <translation>色表現</translation>
    </message>
    <message>
        <source>IIM Interchange Color Space</source>
        <translation>交換用色空間</translation>
    </message>
    <message>
        <source>IIM Color Sequence</source>
        <translation>色の順序</translation>
    </message>
    <message>
        <source>IIM ICC Profile</source>
        <translation>ICC プロファイル</translation>
    </message>
    <message>
        <source>IIM Color Calibration Matrix</source>
        <translation>色補正マトリクス</translation>
    </message>
    <message>
        <source>IIM Lookup Table</source>
        <translation>ルックアップテーブル</translation>
    </message>
    <message>
        <source>IIM Number of Index Entries</source>
        <translation>インデックス項目数</translation>
    </message>
    <message>
        <source>IIM Color Palette</source>
        <translation>カラーパレット</translation>
    </message>
    <message>
        <source>IIM Number of Bits per Sample</source>
        <translation>サンプルあたりのビット数</translation>
    </message>
    <message>
        <source>IIM Sampling Structure</source>
        <translation>サンプリング構造</translation>
    </message>
    <message>
        <source>IIM Scanning Direction</source>
        <translation>走査方向</translation>
    </message>
    <message>
        <source>IIM Image Rotation</source>
        <translation>画像の回転</translation>
    </message>
    <message>
        <source>IIM Data Compression Method</source>
        <translation>データ圧縮方式</translation>
    </message>
    <message>
        <source>IIM Quantization Method</source>
        <translation>量子化方式</translation>
    </message>
    <message>
        <source>IIM End Points</source>
        <translation>端点</translation>
    </message>
    <message>
        <source>IIM Excursion Tolerance</source>
        <translation>偏位許容差</translation>
    </message>
    <message>
        <source>IIM Bits per Component</source>
        <translation>コンポーネントあたりのビット数</translation>
    </message>
    <message>
        <source>IIM Maximum Density Range</source>
        <translation>最大濃度範囲</translation>
    </message>
    <message>
        <source>IIM Gamma Compensated Value</source>
        <translation>ガンマ補正値</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>最新</translation>
    </message>
    <message>
        <source>Analysis</source>
        <translation>分析</translation>
    </message>
    <message>
        <source>Archive material</source>
        <translation>アーカイブ資料</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>特集</translation>
    </message>
    <message>
        <source>Forecast</source>
        <translation>予測</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歴史</translation>
    </message>
    <message>
        <source>Obituary</source>
        <translation>訃報</translation>
    </message>
    <message>
        <source>Opinion</source>
        <translation>論説</translation>
    </message>
    <message>
        <source>Polls &amp; Surveys</source>
        <translation>世論調査・アンケート</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>人物紹介</translation>
    </message>
    <message>
        <source>Results Listings &amp; Tables</source>
        <translation>結果一覧・表</translation>
    </message>
    <message>
        <source>Side bar &amp; Supporting information</source>
        <translation>囲み記事・補足情報</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>要約</translation>
    </message>
    <message>
        <source>Transcript &amp; Verbatim</source>
        <translation>記録・全文</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>インタビュー</translation>
    </message>
    <message>
        <source>From the Scene</source>
        <translation>現場から</translation>
    </message>
    <message>
        <source>Retrospective</source>
        <translation>回顧</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>統計</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Wrap-up</source>
        <translation>まとめ</translation>
    </message>
    <message>
        <source>Press Release</source>
        <translation>プレスリリース</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message>
        <source>Info (Photoshop 2.0)</source>
        <translation>情報 (Photoshop 2.0)</translation>
    </message>
    <message>
        <source>Macintosh Print Info</source>
        <translation>Macintosh プリント情報</translation>
    </message>
    <message>
        <source>XML Data</source>
        <translation>XML データ</translation>
    </message>
    <message>
        <source>Indexed Color Table (Photoshop 2.0)</source>
        <translation>インデックスカラーテーブル (Photoshop 2.0)</translation>
    </message>
    <message>
        <source>Resolution Info</source>
        <translation>解像度情報</translation>
    </message>
    <message>
        <source>Names of the Alpha Channels</source>
        <translation>アルファチャンネル名</translation>
    </message>
    <message>
        <source>Display Info (Obsolete)</source>
        <translation>表示情報 (廃止)</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>キャプション</translation>
    </message>
    <message>
        <source>Border Info</source>
        <translation>境界線情報</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>背景色</translation>
    </message>
    <message>
        <source>Print Flags</source>
        <translation>プリントフラグ</translation>
    </message>
    <message>
        <source>Grayscale and Multichannel Halftoning Info</source>
        <translation>グレースケール・マルチチャンネルのハーフトーン情報</translation>
    </message>
    <message>
        <source>Color Halftoning Info</source>
        <translation>カラーハーフトーン情報</translation>
    </message>
    <message>
        <source>Duotone Halftoning Info</source>
        <translation>ダブルトーンのハーフトーン情報</translation>
    </message>
    <message>
        <source>Grayscale and Multichannel Transfer Function</source>
        <translation>グレースケール・マルチチャンネルの転送関数</translation>
    </message>
    <message>
        <source>Color Transfer Functions</source>
        <translation>カラー転送関数</translation>
    </message>
    <message>
        <source>Duotone Transfer Functions</source>
        <translation>ダブルトーン転送関数</translation>
    </message>
    <message>
        <source>Duotone Image Info</source>
        <translation>ダブルトーン画像情報</translation>
    </message>
    <message>
        <source>Effective Black and White</source>
        <translation>有効な白黒値</translation>
    </message>
    <message>
        <source>(Obsolete)</source>
        <translation>(廃止)</translation>
    </message>
    <message>
        <source>EPS Options</source>
        <translation>EPS オプション</translation>
    </message>
    <message>
        <source>Quick Mask Info</source>
        <translation>クイックマスク情報</translation>
    </message>
    <message>
        <source>Layer State</source>
        <translation>レイヤーの状態</translation>
    </message>
    <message>
        <source>Working Path</source>
        <translation>作業用パス</translation>
    </message>
    <message>
        <source>Layers Group</source>
        <translation>レイヤーグループ</translation>
    </message>
    <message>
        <source>IPTC IIM</source>
        <translation>IPTC IIM</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>画像モード</translation>
    </message>
    <message>
        <source>JPEG Quality</source>
        <translation>JPEG 画質</translation>
    </message>
    <message>
        <source>Grid and Guides</source>
        <translation>グリッドとガイド</translation>
    </message>
    <message>
        <source>BGR Thumbnail</source>
        <translation>BGR サムネイル</translation>
    </message>
    <message>
        <source>Copyright Flag</source>
        <translation>著作権フラグ</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>RGB Thumbnail</source>
        <translation>RGB サムネイル</translation>
    </message>
    <message>
        <source>Global Angle</source>
        <translation>包括光源の角度</translation>
    </message>
    <message>
        <source>Color Samplers</source>
        <translation>カラーサンプラー</translation>
    </message>
    <message>
        <source>ICC Profile</source>
        <translation>ICC プロファイル</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>透かし</translation>
    </message>
    <message>
        <source>ICC Untagged</source>
        <translation>ICC プロファイルなし</translation>
    </message>
    <message>
        <source>Effects Visible</source>
        <translation>効果の表示</translation>
    </message>
    <message>
        <source>Spot Halftone</source>
        <translation>スポットハーフトーン</translation>
    </message>
    <message>
        <source>Document Specific IDs</source>
        <translation>ドキュメント固有 ID</translation>
    </message>
    <message>
        <source>Unicode Alpha Names</source>
        <translation>Unicode アルファチャンネル名</translation>
    </message>
    <message>
        <source>Indexed Color Table Count</source>
        <translation>インデックスカラーテーブルの色数</translation>
    </message>
    <message>
        <source>Transparency Index</source>
        <translation>透明色インデックス</translation>
    </message>
    <message>
        <source>Global Altitude</source>
        <translation>包括光源の高度</translation>
    </message>
    <message>
        <source>Slices</source>
        <translation>スライス</translation>
    </message>
    <message>
        <source>Workflow URL</source>
        <translation>ワークフロー URL</translation>
    </message>
    <message>
        <source>Jump to XPEP</source>
        <translation>XPEP へジャンプ</translation>
    </message>
    <message>
        <source>Alpha Identifiers</source>
        <translation>アルファチャンネル識別子</translation>
    </message>
    <message>
        <source>URL List</source>
        <translation>URL リスト</translation>
    </message>
    <message>
        <source>Version Info</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Exif</source>
        <translation>Exif</translation>
    </message>
    <message>
        <source>XMP Metadata</source>
        <translation>XMP メタデータ</translation>
    </message>
    <message>
        <source>Caption Digest</source>
        <translation>キャプションダイジェスト</translation>
    </message>
    <message>
        <source>Print Scale</source>
        <translation>プリントの拡大・縮小</translation>
    </message>
    <message>
        <source>Pixel Aspect Ratio</source>
        <translation>ピクセル縦横比</translation>
    </message>
    <message>
        <source>Layer Comps</source>
        <translation>レイヤーカンプ</translation>
    </message>
    <message>
        <source>Alternate Duotone Colors</source>
        <translation>代替ダブルトーンカラー</translation>
    </message>
    <message>
        <source>Alternate Spot Colors</source>
        <translation>代替スポットカラー</translation>
    </message>
    <message>
        <source>Layer Selection IDs</source>
        <translation>レイヤー選択 ID</translation>
    </message>
    <message>
        <source>HDR Toning Info</source>
        <translation>HDR トーン情報</translation>
    </message>
    <message>
        <source>Print Info</source>
        <translation>プリント情報</translation>
    </message>
    <message>
        <source>Layer Groups Enabled ID</source>
        <translation>有効なレイヤーグループ ID</translation>
    </message>
    <message>
        <source>Color Samplers Resource</source>
        <translation>カラーサンプラーリソース</translation>
    </message>
    <message>
        <source>Measurement Scale</source>
        <translation>計測スケール</translation>
    </message>
    <message>
        <source>Timeline Info</source>
        <translation>タイムライン情報</translation>
    </message>
    <message>
        <source>Sheet Disclosure</source>
        <translation>シートの展開状態</translation>
    </message>
    <message>
        <source>Display Info</source>
        <translation>表示情報</translation>
    </message>
    <message>
        <source>Onion Skins</source>
        <translation>オニオンスキン</translation>
    </message>
    <message>
        <source>Count Info</source>
        <translation>カウント情報</translation>
    </message>
    <message>
        <source>Print Style</source>
        <translation>プリントスタイル</translation>
    </message>
    <message>
        <source>Macintosh NSPrintInfo</source>
        <translation>Macintosh NSPrintInfo</translation>
    </message>
    <message>
        <source>Windows DEVMODE</source>
        <translation>Windows DEVMODE</translation>
    </message>
    <message>
        <source>Path Info</source>
        <translation>パス情報</translation>
    </message>
    <message>
        <source>Name of Clipping Path</source>
        <translation>クリッピングパス名</translation>
    </message>
    <message>
        <source>Plug-In resources</source>
        <translation>プラグインリソース</translation>
    </message>
    <message>
        <source>Image Ready Variables</source>
        <translation>ImageReady 変数</translation>
    </message>
    <message>
        <source>Image Ready Data Sets</source>
        <translation>ImageReady データセット</translation>
    </message>
    <message>
        <source>Lightroom Workflow</source>
        <translation>Lightroom ワークフロー</translation>
    </message>
    <message>
        <source>Print Flags Info</source>
        <translation>プリントフラグ情報</translation>
    </message>
    <message>
        <source>IPTC Information Interchange Model</source>
        <translation>IPTC 情報交換モデル</translation>
    </message>
</context>
<context>
    <name>ImageWindow</name>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Information Text</source>
        <translation>情報テキスト</translation>
    </message>
</context>
<context>
    <name>InfoTableModel</name>
    <message>
        <source>Tag</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
</context>
<context>
    <name>InfoWindow</name>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
</context>
<context>
    <name>Localizable</name>
    <message>
        <source>Save Completed:</source>
        <translation>保存が完了しました: %1</translation>
    </message>
    <message>
        <source>Save a file Failed.</source>
        <translation>ファイルを保存できませんでした。（%1）</translation>
    </message>
    <message>
        <source>Save files Failed.</source>
        <translation>ファイルを保存できませんでした。（%1 ファイル）</translation>
    </message>
    <message>
        <source>LocalST_ImagesWindowTitle</source>
        <translation>%1（%2 枚）</translation>
    </message>
    <message>
        <source>The document has unsaved changes. Do you want to save the changes before closing?</source>
        <translation>書類“%1”には保存されていない変更があります。閉じる前に変更を保存しますか?</translation>
    </message>
    <message>
        <source>Could not be opened.</source>
        <translation>“%1”を開けませんでした。</translation>
    </message>
    <message>
        <source>You are opening multiple files.</source>
        <translation>%1 個のファイルを開こうとしています。</translation>
    </message>
    <message>
        <source>Loading files</source>
        <translation>%1 個のファイルを読み込み中...</translation>
    </message>
    <message>
        <source>%@ / %lu</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>How would you like to open them?</source>
        <translation>どのように開きますか?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Open Files</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備中...</translation>
    </message>
    <message>
        <source>A date would leave the range from 0001 to 9999.</source>
        <translation>日付が 0001 年から 9999 年の範囲外になります。</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Edited</source>
        <translation>変更済み</translation>
    </message>
    <message>
        <source>No Date-Time</source>
        <translation>日時なし</translation>
    </message>
    <message>
        <source>Restore Selected Files</source>
        <translation>選択したファイルを元に戻す</translation>
    </message>
    <message>
        <source>Restore All Files</source>
        <translation>すべてのファイルを元に戻す</translation>
    </message>
    <message>
        <source>Backward</source>
        <translation>戻す</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>進める</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Open in One Window</source>
        <translation>1 つのウインドウで開く</translation>
    </message>
    <message>
        <source>Open in Separate Windows</source>
        <translation>別々のウインドウで開く</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>Multiple Values</source>
        <translation>複数の値</translation>
    </message>
    <message>
        <source>There are multiple documents with unsaved changes. Do you want to save them before closing?</source>
        <translation>保存されていない変更のある書類が複数あります。閉じる前に保存しますか?</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don&apos;t save them.</source>
        <translation>保存しないと、変更内容は失われます。</translation>
    </message>
    <message>
        <source>It uses a file format that Lumidate does not recognize.</source>
        <translation>Lumidate が認識できないファイルフォーマットです。</translation>
    </message>
    <message>
        <source>An unknown cause.</source>
        <translation>原因は不明です。</translation>
    </message>
    <message>
        <source>The files could not be opened.</source>
        <translation>ファイルを開けませんでした。</translation>
    </message>
    <message>
        <source>Set Time</source>
        <translation>時刻を設定</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>年</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>月</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>時</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>分</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>サムネイル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>DateTimeOriginal</source>
        <translation>撮影日時</translation>
    </message>
    <message>
        <source>DateTimeDigitized</source>
        <translation>デジタル化日時</translation>
    </message>
    <message>
        <source>DateTime</source>
        <translation>変更日時</translation>
    </message>
    <message>
        <source>Restore Clicked File</source>
        <translation>クリックしたファイルを元に戻す</translation>
    </message>
    <message>
        <source>Date Time Original:</source>
        <translation>撮影日時:</translation>
    </message>
    <message>
        <source>Date Time Digitized:</source>
        <translation>デジタル化日時:</translation>
    </message>
    <message>
        <source>Date Time Edited:</source>
        <translation>変更日時:</translation>
    </message>
    <message>
        <source>Hide Information</source>
        <translation>情報を隠す</translation>
    </message>
    <message>
        <source>Show Information</source>
        <translation>情報を表示</translation>
    </message>
    <message>
        <source>%ld x %ld</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>, %@</source>
        <translation>、%1</translation>
    </message>
    <message>
        <source>days</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>day</source>
        <translation>%1 日</translation>
    </message>
    <message>
        <source>Day Count Calculator</source>
        <translation>日数計算機</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Lumidate</source>
        <translation>Lumidate</translation>
    </message>
    <message>
        <source>Retrieve altitude value from the Geospatial Information Authority of Japan.</source>
        <translation>国土地理院から標高値を取得します。</translation>
    </message>
    <message>
        <source>This file cannot be edited:</source>
        <translation>このファイルは編集できません: %1。</translation>
    </message>
    <message>
        <source>Videos are not edited yet.</source>
        <translation>動画はまだ編集できません。</translation>
    </message>
</context>
<context>
    <name>MultiFileActions</name>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;All</source>
        <translation>すべてを保存(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべてを選択(&amp;A)</translation>
    </message>
    <message>
        <source>Mark All Files</source>
        <translation>すべてのファイルに印を付ける</translation>
    </message>
    <message>
        <source>Unmark All Files</source>
        <translation>すべてのファイルの印を外す</translation>
    </message>
    <message>
        <source>Mark Selected Files</source>
        <translation>選択したファイルに印を付ける</translation>
    </message>
    <message>
        <source>Unmark Selected Files</source>
        <translation>選択したファイルの印を外す</translation>
    </message>
    <message>
        <source>Sort By</source>
        <translation>並べ替え</translation>
    </message>
</context>
<context>
    <name>MultiFileWindow</name>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>パス(&amp;P):</translation>
    </message>
</context>
<context>
    <name>OpenFileDialog</name>
    <message>
        <source>All Files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Camera RAW (%1)</source>
        <translation>カメラ RAW (%1)</translation>
    </message>
    <message>
        <source>HEIC/HEIF/AVIF (%1)</source>
        <translation>HEIC/HEIF/AVIF (%1)</translation>
    </message>
    <message>
        <source>PNG (%1)</source>
        <translation>PNG (%1)</translation>
    </message>
    <message>
        <source>WebP (%1)</source>
        <translation>WebP (%1)</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>写真 (%1)</translation>
    </message>
</context>
<context>
    <name>OrbAltitudeGetterField</name>
    <message>
        <source>Altitude</source>
        <translation>高度</translation>
    </message>
</context>
<context>
    <name>PhotoView</name>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>The photo cannot be shown.</source>
        <translation>写真を表示できません。</translation>
    </message>
</context>
<context>
    <name>QMenuBar</name>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>List Size</source>
        <translation>リストのサイズ</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
</context>
<context>
    <name>SavingSheet</name>
    <message>
        <source>Saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>保存中...</translation>
    </message>
</context>
<context>
    <name>SingleFileWindow</name>
    <message>
        <source>Change by Interval...</source>
        <translation>間隔で変更...</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>保存した状態に戻す(&amp;V)</translation>
    </message>
    <message>
        <source>Change by &amp;Interval...</source>
        <translation>間隔で変更(&amp;I)...</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Shows and corrects the dates of photos.</source>
        <translation>写真の日付を表示して修正します。</translation>
    </message>
    <message>
        <source>Photo files or folders to open.</source>
        <translation>開く写真ファイルまたはフォルダ。</translation>
    </message>
</context>
</TS>
