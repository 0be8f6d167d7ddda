--top d
--


-- (legal notice)



--synthesis_resources = inv 6 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (5 DOWNTO 0);
		 y	:	OUT  STD_LOGIC_VECTOR (5 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_x1_o	:	STD_LOGIC;
	 SIGNAL  wire_x2_o	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_x3_o	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_x3_a	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_x4_o	:	STD_LOGIC;
	 SIGNAL  wire_w_d_range2w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
	 SIGNAL  wire_w_d_range3w	:	STD_LOGIC_VECTOR (1 DOWNTO 0);
 BEGIN

	y <= ( wire_x4_o & wire_x3_o & wire_x2_o & wire_x1_o);
	wire_w_d_range2w <= d(2 DOWNTO 1);
	wire_w_d_range3w <= d(4 DOWNTO 3);
	wire_x1_o <= NOT d(0);
	wire_x2_o <= NOT d(2 DOWNTO 1);
	wire_x3_a <= d(4 DOWNTO 3);
	wire_x3_o(0) <= NOT wire_x3_a(0);
	wire_x3_o(1) <= NOT wire_x3_a(1);
	wire_x4_o <= NOT d(5);

 END RTL; --top
--VALID FILE
