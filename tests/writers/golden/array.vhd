--top d en
--


-- (legal notice)




--stage HELD=1 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg7i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (1 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (1 DOWNTO 0)
	 ); 
 END top_mg7i1;

 ARCHITECTURE RTL OF top_mg7i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_st_w_lg_d4w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_st_w_lg_w_lg_d4w5w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_d4w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 1 GENERATE 
		wire_st_w_lg_w_lg_d4w5w(i) <= wire_st_w_lg_d4w(i) XOR en;
	END GENERATE loop1;
	keep <= "10";
	q <= wire_st_w_lg_w_lg_d4w5w;

 END RTL; --top_mg7i1

--synthesis_resources = blk 2 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (5 DOWNTO 0);
		 en	:	IN  STD_LOGIC;
		 q	:	OUT  STD_LOGIC_VECTOR (5 DOWNTO 0);
		 x	:	OUT  STD_LOGIC;
		 y	:	OUT  STD_LOGIC
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_cells_1a	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_cells_0o	:	STD_LOGIC;
	 SIGNAL  wire_cells_1o	:	STD_LOGIC;
	 SIGNAL  wire_st_d	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 SIGNAL  wire_st_q	:	STD_LOGIC_VECTOR (5 DOWNTO 0);
	 COMPONENT  blk
	 GENERIC 
	 (
		lpm_hint	:	STRING := "UNUSED";
		lpm_type	:	STRING := "blk"
	 );
	 PORT
	 ( 
		a	:	IN STD_LOGIC_VECTOR(3 DOWNTO 0);
		ena	:	IN STD_LOGIC := '1';
		o	:	OUT STD_LOGIC;
		spare	:	OUT STD_LOGIC
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg7i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(1 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(1 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_st_q;
	x <= wire_cells_0o;
	y <= wire_cells_1o;
	wire_cells_1a <= ( d(1 DOWNTO 0) & en & en);
	cells_0 :  blk
	  PORT MAP ( 
		a => d(3 DOWNTO 0),
		o => wire_cells_0o
	  );
	cells_1 :  blk
	  PORT MAP ( 
		a => wire_cells_1a,
		ena => en,
		o => wire_cells_1o
	  );
	wire_st_d <= d;
	loop2 : FOR i IN 0 TO 2 GENERATE 
	  st :  top_mg7i1
	  PORT MAP ( 
		d => wire_st_d(i*2+1 DOWNTO i*2),
		en => en,
		q => wire_st_q(i*2+1 DOWNTO i*2)
	  );
	END GENERATE loop2;

 END RTL; --top
--VALID FILE
